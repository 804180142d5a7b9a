#include "kit/ShownText.h"

namespace wayloom {
namespace {

TEST(ShownTextTest, IsOneLineOfWholeCharacters) {
  const std::string many(399, 'a');
  const std::pair<std::string, QString> cases[] = {
      {"", ""},
      {"Göteborg", "Göteborg"},
      {"two\nlines\tand\u2028more\u2029", "two lines and more "},
      {many + "bc", QString::fromStdString(many + "b")},
      {many + "😀", QString::fromStdString(many)},
      {std::string(100'000, 'a'), QString(400, u'a')},
  };
  for (const auto& [text, shown] : cases) EXPECT_EQ(shownText(text), shown) << text;
}

}  // namespace
}  // namespace wayloom
