#include "OtherNames.h"

#include <array>

namespace wayloom {

namespace {

struct OtherName {
  std::string_view country;
  std::string_view name;
  std::string_view other;
};

constexpr std::array<OtherName, 102> kOtherNames = {{
    {"AE", "Dubai", "دبي"},
    {"AT", "Vienna", "Wien"},
    {"BE", "Antwerpen", "Antwerp"},
    {"BE", "Antwerpen", "Anvers"},
    {"BE", "Brussels", "Bruxelles"},
    {"BE", "Brussels", "Brussel"},
    {"BE", "Brugge", "Bruges"},
    {"BE", "Gent", "Ghent"},
    {"BE", "Gent", "Gand"},
    {"BG", "Sofia", "София"},
    {"BY", "Minsk", "Минск"},
    {"CH", "Genève", "Geneva"},
    {"CH", "Genève", "Genf"},
    {"CH", "Zürich", "Zurich"},
    {"CH", "Basel", "Basle"},
    {"CH", "Basel", "Bâle"},
    {"CN", "Beijing", "北京"},
    {"CN", "Beijing", "Peking"},
    {"CN", "Guangzhou", "广州"},
    {"CN", "Guangzhou", "Canton"},
    {"CN", "Shanghai", "上海"},
    {"CN", "Shenzhen", "深圳"},
    {"CY", "Nicosia", "Lefkosia"},
    {"CZ", "Prague", "Praha"},
    {"CZ", "Pilsen", "Plzeň"},
    {"DE", "Köln", "Cologne"},
    {"DE", "Munich", "München"},
    {"DE", "Nürnberg", "Nuremberg"},
    {"DE", "Hannover", "Hanover"},
    {"DK", "Copenhagen", "København"},
    {"DK", "Copenhagen", "Köpenhamn"},
    {"DK", "Copenhagen", "Kopenhagen"},
    {"EG", "Cairo", "القاهرة"},
    {"EG", "Alexandria", "الإسكندرية"},
    {"ES", "Sevilla", "Seville"},
    {"ES", "A Coruña", "La Coruña"},
    {"FI", "Helsinki", "Helsingfors"},
    {"FI", "Turku", "Åbo"},
    {"FI", "Tampere", "Tammerfors"},
    {"GB", "London", "Londres"},
    {"GE", "Tbilisi", "თბილისი"},
    {"GR", "Athens", "Athína"},
    {"GR", "Athens", "Αθήνα"},
    {"GR", "Thessaloníki", "Θεσσαλονίκη"},
    {"HK", "Hong Kong", "香港"},
    {"IL", "Jerusalem", "ירושלים"},
    {"IL", "Tel Aviv", "תל אביב"},
    {"IN", "Bengaluru", "Bangalore"},
    {"IN", "Kolkata", "Calcutta"},
    {"IN", "Mumbai", "Bombay"},
    {"IN", "Chennai", "Madras"},
    {"IQ", "Baghdad", "بغداد"},
    {"IR", "Tehran", "تهران"},
    {"IT", "Florence", "Firenze"},
    {"IT", "Genoa", "Genova"},
    {"IT", "Milan", "Milano"},
    {"IT", "Naples", "Napoli"},
    {"IT", "Rome", "Roma"},
    {"IT", "Turin", "Torino"},
    {"IT", "Venice", "Venezia"},
    {"JP", "Kyoto", "京都"},
    {"JP", "Nagoya", "名古屋"},
    {"JP", "Osaka", "大阪"},
    {"JP", "Tokyo", "東京"},
    {"KR", "Busan", "부산"},
    {"KR", "Seoul", "서울"},
    {"LT", "Vilnius", "Wilno"},
    {"LV", "Riga", "Rīga"},
    {"MD", "Chisinau", "Chişinău"},
    {"MM", "Yangon", "Rangoon"},
    {"MX", "Mexico City", "Ciudad de México"},
    {"NL", "The Hague", "Den Haag"},
    {"PL", "Kraków", "Cracow"},
    {"PL", "Warsaw", "Warszawa"},
    {"PL", "Wrocław", "Breslau"},
    {"PL", "Gdańsk", "Danzig"},
    {"PT", "Lisbon", "Lisboa"},
    {"PT", "Porto", "Oporto"},
    {"RO", "Bucharest", "București"},
    {"RS", "Belgrade", "Beograd"},
    {"RS", "Belgrade", "Београд"},
    {"RU", "Moscow", "Moskva"},
    {"RU", "Moscow", "Москва"},
    {"RU", "Saint Petersburg", "Sankt-Peterburg"},
    {"RU", "Saint Petersburg", "Санкт-Петербург"},
    {"SA", "Mecca", "Makkah"},
    {"SA", "Riyadh", "الرياض"},
    {"SE", "Göteborg", "Gothenburg"},
    {"SG", "Singapore", "新加坡"},
    {"SY", "Damascus", "دمشق"},
    {"TH", "Bangkok", "Krung Thep"},
    {"TH", "Bangkok", "กรุงเทพ"},
    {"TR", "Istanbul", "Constantinople"},
    {"TW", "Taipei", "台北"},
    {"UA", "Kyiv", "Kiev"},
    {"UA", "Kyiv", "Київ"},
    {"UA", "Odessa", "Odesa"},
    {"UA", "Kharkiv", "Kharkov"},
    {"UA", "Lviv", "Lvov"},
    {"UA", "Lviv", "Львів"},
    {"US", "New York City", "New York"},
    {"VN", "Ho Chi Minh City", "Saigon"},
}};

}  // namespace

std::vector<std::string_view> otherNamesOf(std::string_view country, std::string_view name) {
  std::vector<std::string_view> names;
  for (const OtherName& entry : kOtherNames) {
    if (entry.country == country && entry.name == name) names.push_back(entry.other);
  }
  return names;
}

}  // namespace wayloom
