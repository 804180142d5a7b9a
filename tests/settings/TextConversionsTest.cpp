#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "settings/TextConversions.h"

namespace wayloom {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::string printed(double value) {
  char buffer[400];
  std::snprintf(buffer, sizeof buffer, "%f", value);
  return buffer;
}

TEST(TextConversionsTest, RealsAreFormattedAsPrintfDoes) {
  EXPECT_EQ(formatReal(-0.25), "-0.250000");
  using Limits = std::numeric_limits<double>;
  for (const double value :
       {0.0, -0.0, 0.0000005, 2.5e-7, 1e300, Limits::max(), -Limits::max(), Limits::denorm_min(),
        -1e-9, kInfinity, -kInfinity, std::nan(""), -std::nan(""), 0.1234565, 99999999.9999995}) {
    EXPECT_EQ(formatReal(value), printed(value));
  }
  std::mt19937_64 random(1969);
  std::uniform_real_distribution<double> degrees(-180, 180);
  for (int i = 0; i < 10000; ++i) {
    for (const double value : {std::bit_cast<double>(random()), degrees(random)}) {
      ASSERT_EQ(formatReal(value), printed(value));
    }
  }
}

TEST(TextConversionsTest, BooleanReading) {
  for (const char* const text : {"1", "9", "Y", "y", "T", "true", "Yes", " \t\n1", "+1", "-1",
                                 "007", "-00t", "0y", "1abc"}) {
    EXPECT_TRUE(boolValue(text)) << text;
  }
  for (const char* const text :
       {"", " ", "0", "000", "-", "+", "+-1", "- 1", "no", "F", "x1", "0 1", "0.5",
        "\xC2\xA0"
        "1"}) {
    EXPECT_FALSE(boolValue(text)) << text;
  }
}

TEST(TextConversionsTest, IntegerReading) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  const std::pair<std::int32_t, std::vector<const char*>> readings[] = {
      {0, {"", "abc", "0x10", "--1", "- 1", "-"}},
      {1, {"1.9", "1e3"}},
      {7, {" 7", "007", "+7"}},
      {-12, {"\n\t-12x"}},
      {1700000000, {"1700000000.000000"}},
      {kMost, {"2147483647", "2147483648", "99999999999999999999999999"}},
      {kLeast, {"-2147483648", "-2147483649", "-99999999999999999999999999"}}};
  for (const auto& [value, texts] : readings) {
    for (const char* const text : texts) EXPECT_EQ(intValue(text), value) << text;
  }
}

TEST(TextConversionsTest, RealReading) {
  const std::pair<double, std::vector<const char*>> readings[] = {
      {0, {"nan", "inf", "-Infinity", "0x10", "1e-400", "0e999999", "1e-99999999999999999999999"}},
      {kInfinity, {"1e400", "0.0000000001e400", "1e99999999999999999999999"}},
      {-kInfinity, {"-1e400"}},
      {48.85837, {"48.858370"}},
      {1, {"1,5", "1abc", "1e", "1.e0", "+1", "01", "1..", "1e+-1"}},
      {-0.25, {" \t-0.25", "-.25", "-25e-2", "-2.5E-1"}},
      {4.9e-324, {"4.9e-324"}}};
  for (const auto& [value, texts] : readings) {
    for (const char* const text : texts) EXPECT_EQ(doubleValue(text), value) << text;
  }
  EXPECT_TRUE(std::signbit(doubleValue("-0.0")));
  EXPECT_EQ(doubleValue(std::string(400, '9')), kInfinity);
  EXPECT_EQ(doubleValue("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(doubleValue("0." + std::string(400, '0') + "1e401"), 1);
}

TEST(TextConversionsTest, ValuesOfFilesReadByWhatTheyAre) {
  struct Reading {
    PropertyList value;
    bool flag;
    std::int32_t integer;
    double real;
  };
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  const Reading readings[] = {
      {" 7.5", true, 7, 7.5},
      {true, true, 1, 1},
      {false, false, 0, 0},
      {-3, true, -3, -3},
      {0.5, true, 0, 0.5},
      {-1.9, true, -1, -1.9},
      {1e20, true, kMost, 1e20},
      {-kInfinity, true, std::numeric_limits<std::int32_t>::min(), -kInfinity},
      {std::int64_t{1} << 40, true, kMost, 1099511627776.0},
      {std::numeric_limits<std::uint64_t>::max(), true, kMost, 18446744073709551616.0},
      {PropertyList::Array{1}, false, 0, 0},
      {PropertyList::Dictionary{{"1", "1"}}, false, 0, 0},
      {PropertyList::Value(PropertyList::Date{5}), false, 0, 0}};
  for (const Reading& reading : readings) {
    EXPECT_EQ(boolValue(&reading.value), reading.flag) << reading.real;
    EXPECT_EQ(intValue(&reading.value), reading.integer) << reading.real;
    EXPECT_EQ(doubleValue(&reading.value), reading.real) << reading.integer;
  }
  const PropertyList* const kNothing = nullptr;
  EXPECT_FALSE(boolValue(kNothing));
  EXPECT_EQ(intValue(kNothing), 0);
  EXPECT_EQ(doubleValue(kNothing), 0);
  const PropertyList notANumber = std::nan("");
  EXPECT_EQ(intValue(&notANumber), 0);
}

}  // namespace
}  // namespace wayloom
