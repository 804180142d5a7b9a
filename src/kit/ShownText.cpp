#include "kit/ShownText.h"

#include <algorithm>

namespace wayloom {

namespace {
/// Wider than any window; and cutting bytes is cheap, however long the text is.
constexpr std::size_t kMaximumBytes = 2000;
constexpr qsizetype kMaximumCharacters = 400;

bool breaksLine(QChar character) {
  return character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
         character == QChar::ParagraphSeparator;
}
}  // namespace

QString shownText(std::string_view utf8) {
  const std::string_view head = utf8.substr(0, kMaximumBytes);
  QString text = QString::fromUtf8(head.data(), static_cast<qsizetype>(head.size()));
  if (text.size() > kMaximumCharacters) {
    // Between the two halves of a character there is no place to cut.
    const bool splits = text[kMaximumCharacters].isLowSurrogate();
    text.truncate(kMaximumCharacters - (splits ? 1 : 0));
  }
  std::replace_if(text.begin(), text.end(), breaksLine, QChar(u' '));
  return text;
}

}  // namespace wayloom
