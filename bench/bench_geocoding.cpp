#include <benchmark/benchmark.h>
#include <string>

#include "places/GeocodingAnswer.h"

namespace {

/// One result as the service writes it, indented, with every field that a street address has.
constexpr const char* kResult = R"(      {
         "address_components" : [
            { "long_name" : "12", "short_name" : "12", "types" : [ "street_number" ] },
            { "long_name" : "Kungsportsavenyen", "short_name" : "Kungsportsavenyen",
              "types" : [ "route" ] },
            { "long_name" : "Lorensberg", "short_name" : "Lorensberg",
              "types" : [ "political", "sublocality", "sublocality_level_1" ] },
            { "long_name" : "Göteborg", "short_name" : "Göteborg", "types" : [ "postal_town" ] },
            { "long_name" : "Göteborg", "short_name" : "Göteborg",
              "types" : [ "locality", "political" ] },
            { "long_name" : "Västra Götalands län", "short_name" : "Västra Götalands län",
              "types" : [ "administrative_area_level_1", "political" ] },
            { "long_name" : "Sweden", "short_name" : "SE", "types" : [ "country", "political" ] },
            { "long_name" : "411 36", "short_name" : "411 36", "types" : [ "postal_code" ] }
         ],
         "formatted_address" : "Kungsportsavenyen 12, 411 36 Göteborg, Sweden",
         "geometry" : {
            "bounds" : {
               "northeast" : { "lat" : 57.70113469999999, "lng" : 11.9762497 },
               "southwest" : { "lat" : 57.70097989999999, "lng" : 11.9758926 }
            },
            "location" : { "lat" : 57.7010573, "lng" : 11.9760712 },
            "location_type" : "ROOFTOP",
            "viewport" : {
               "northeast" : { "lat" : 57.70240628029149, "lng" : 11.9774201302915 },
               "southwest" : { "lat" : 57.69970831970849, "lng" : 11.9747221697085 }
            }
         },
         "place_id" : "ChIJPwdslmnzT0YRkdK3F9iX1mk",
         "types" : [ "street_address" ]
      })";

void readHundredResults(benchmark::State& state) {
  std::string body = "{\n   \"results\" : [\n";
  for (int i = 0; i < 100; ++i) body += std::string(i == 0 ? "" : ",\n") + kResult;
  body += "\n   ],\n   \"status\" : \"OK\"\n}\n";
  for (auto _ : state) {
    const auto answer = wayloom::readGeocodingAnswer(body);
    if (!answer.placemarks || answer.placemarks->size() != 100) state.SkipWithError("not read");
    benchmark::DoNotOptimize(answer.placemarks->back());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(body.size()));
}
BENCHMARK(readHundredResults)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
