#include "places/SearchOffers.h"
#include "tests/support/FailingFiles.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

using Searches = std::vector<RecentSearch>;

Place named(const std::string& name) {
  Place place;
  place.name = name;
  return place;
}

class SearchOffersTest : public testing::Test {
 protected:
  void ask(const std::string& text) {
    offers.ask(text, Coordinate{57.7, 11.97},
               [this](std::vector<SearchOffer> given) { shown = std::move(given); });
  }

  TemporaryFolder folder;
  const std::filesystem::path file = folder.path() / "of its own" / "recent-searches";
  RecentSearches recent{file};
  FakeGeocoder geocoder;
  FakeSuggestions names;
  SearchOffers offers{geocoder, names, recent, "en"};
  std::vector<SearchOffer> shown;
};

TEST_F(SearchOffersTest, PlacesSayWhereTheyAreAndLeadThere) {
  ask("  vasa ");
  ASSERT_EQ(names.questions.size(), 1U);
  EXPECT_EQ(names.questions[0].first, "vasa");
  Place vasa = named("Vasa");
  vasa.division = "Vasa";
  vasa.country = "Finland";
  vasa.coordinate = {63.1, 21.6};
  names.questions[0].second({vasa});
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].search, (RecentSearch{"Vasa", "63.100000, 21.600000"}));
  EXPECT_EQ(shown[0].whereabouts, "Finland");
  EXPECT_STREQ(shown[0].kind->key, "Town");
  EXPECT_NEAR(*shown[0].metres, 800'000, 20'000);
}

TEST_F(SearchOffersTest, WhatWasUnderstoodIsTheOnlyOffer) {
  const char* const positions[] = {"40.7128° N, 74.0060° W",
                                   "https://example.org/?q=40.7128,-74.006", "#:40.7128,-74.006"};
  for (const char* text : positions) {
    geocoder.addresses.clear();
    ask(text);
    ASSERT_EQ(geocoder.addresses.size(), 1U) << text;
    const GeocodedPlace there{{40.7128, -74.006}, {"City Hall"}};
    geocoder.addresses[0].second({{{there, there}}, std::nullopt});
    ASSERT_EQ(shown.size(), 1U) << text;
    EXPECT_EQ(shown[0].search.query, "40.712800, -74.006000") << text;
    EXPECT_EQ(shown[0].whereabouts, "City Hall") << text;
  }
  for (const char* nothing : {"91.5, 11", "#:paris", "#:1,2,3"}) {
    ask(nothing);
    EXPECT_TRUE(shown.empty()) << nothing;
  }
  EXPECT_TRUE(names.questions.empty());
}

TEST_F(SearchOffersTest, OutdatedAnswersDoNotCome) {
  ask("mal");
  ask("malm");
  names.questions[0].second({named("Mali")});
  EXPECT_TRUE(shown.empty());
  names.questions[1].second({named("Malmö")});
  EXPECT_EQ(shown.at(0).search.text, "Malmö");

  ask("malmö 57.7,11.97");
  ask("1.5, 2.5");
  offers.forget();
  geocoder.addresses[0].second({{{GeocodedPlace{{1.5, 2.5}, {}}}}, std::nullopt});
  EXPECT_EQ(shown.at(0).search.text, "Malmö");
}

TEST_F(SearchOffersTest, RecentSearchesAreOfferedBeforeAnythingIsTyped) {
  for (int search = 1; search <= 12; ++search) {
    const std::string text = "place " + std::to_string(search);
    ASSERT_TRUE(recent.add({text, search == 12 ? "1.000000, 2.000000" : text}));
  }
  ASSERT_TRUE(recent.add({"place 7", "place 7"}));
  ask(" ");
  ASSERT_EQ(shown.size(), RecentSearches::kMost);
  EXPECT_EQ(shown[0].search.text, "place 7");
  EXPECT_EQ(shown[1].search, (RecentSearch{"place 12", "1.000000, 2.000000"}));
  EXPECT_EQ(shown.back().search.text, "place 3");

  ASSERT_TRUE(recent.remove(shown[1].search));
  EXPECT_EQ(RecentSearches(file).all()[1].text, "place 11") << "from the file";
  ASSERT_TRUE(recent.clear());
  EXPECT_EQ(recent.all(), Searches());

  RecentSearches none{std::nullopt};
  ASSERT_TRUE(none.add({"kept nowhere", "kept nowhere"}));
  EXPECT_TRUE(none.remove({"kept nowhere", "kept nowhere"}) && none.clear());
  EXPECT_EQ(none.all(), Searches());
}

TEST_F(SearchOffersTest, AFileOfRecentSearchesIsNotTrusted) {
  const std::string huge(5000, 'a');
  writeBytes(file, "good\n\n\tquery only\nbell\a\nbad \xff\n" + huge +
                       "\nesc \xc2\x9b\nVasa\t63.1, 21.6\ntwo\ttabs\there\nlast without an end");
  EXPECT_EQ(recent.all(), (Searches{{"good", "good"},
                                    {"Vasa", "63.1, 21.6"},
                                    {"last without an end", "last without an end"}}));
  ASSERT_TRUE(recent.add({"line\nbreak", "x"}));
  ASSERT_TRUE(recent.add({huge, huge}));
  EXPECT_EQ(recent.all().size(), 3U);

  writeBytes(file, std::string(1 << 20, 'x'));
  EXPECT_EQ(recent.all(), Searches());
  std::filesystem::remove(file);
  std::filesystem::create_symlink("/etc/passwd", file);
  EXPECT_EQ(recent.all(), Searches());
  EXPECT_FALSE(recent.add({"x", "x"})) << "a link is not followed";
}

TEST_F(SearchOffersTest, RecentSearchesThatCannotBeReadAreKept) {
  ASSERT_TRUE(recent.add({"kept", "kept"}));
  FailingFiles system;
  RecentSearches unread{file, system};
  for (const auto& change : {&RecentSearches::add, &RecentSearches::remove}) {
    system.fault = {"open", system.calls["open"] + 1, EIO};
    EXPECT_FALSE((unread.*change)({"new", "new"}));
    EXPECT_EQ(recent.all(), (Searches{{"kept", "kept"}}));
  }
}

}  // namespace
}  // namespace wayloom
