#include <iomanip>
#include <limits>
#include <plist/plist.h>
#include <sstream>

#include "settings/PropertyListFormat.h"
#include "tests/support/ShellRun.h"

// What the programs write, read by other implementations, value by value, and back. The readers'
// known differences stand in docs/settings-files.md as well.

namespace wayloom {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;
using Value = PropertyList::Value;

std::string hex(std::string_view bytes) {
  std::ostringstream digits;
  for (const char byte : bytes) {
    digits << std::hex << std::setw(2) << std::setfill('0') << (byte & 0xFF);
  }
  return digits.str();
}

void print(const PropertyList& value, std::ostream& out) {
  if (const auto* text = value.get<std::string>()) out << 's' << hex(*text);
  if (const auto* flag = value.get<bool>()) out << (*flag ? "b1" : "b0");
  if (const auto* number = value.get<std::int64_t>()) out << 'i' << *number;
  if (const auto* number = value.get<std::uint64_t>()) out << 'i' << *number;
  if (const auto* real = value.get<double>()) {
    out << 'r' << hex(std::string_view(reinterpret_cast<const char*>(real), sizeof *real));
  }
  if (const auto* data = value.get<PropertyList::Data>()) {
    out << 'x' << hex({reinterpret_cast<const char*>(data->bytes.data()), data->bytes.size()});
  }
  if (const auto* date = value.get<PropertyList::Date>()) {
    out << 'd' << static_cast<std::int64_t>(date->seconds);
  }
  if (const auto* array = value.get<Array>()) {
    out << '[';
    for (const PropertyList& entry : *array) print(entry, out << ' ');
    out << " ]";
  }
  if (const auto* dictionary = value.get<Dictionary>()) {
    out << '{';
    for (const auto& [key, entry] : *dictionary) print(entry, out << " s" << hex(key) << ' ');
    out << " }";
  }
}

/// A value in the form that all readers print: "s" and a text in hexadecimal UTF-8, "i" and a whole
/// number, "r" and a real's eight bytes, the least first, "b1" and "b0", "x" and bytes, "d" and
/// seconds since 2001, an array in brackets, a dictionary, sorted, in braces; all with blanks
/// between.
std::string form(const PropertyList& value) {
  std::ostringstream out;
  print(value, out);
  return out.str();
}

/// One value that a reader takes for another, wherever it stands, texts in keys included.
struct Difference {
  const char* reader;
  PropertyList written;
  PropertyList read;
};

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
const Difference kKnownDifferences[] = {
    {"npm", "\u0085", "\n"},
    {"npm", "a\u0085b", "a\nb"},
    {"npm", "\u2028", "\n"},
    {"npm", "a\u2028b", "a\nb"},
    {"npm", kInfinity, kNotANumber},
    {"npm", -kInfinity, kNotANumber},
    {"GNUstep", "\uFEFF", ""},
    {"GNUstep", "\uFEFFa", "a"},
    {"GNUstep", std::numeric_limits<std::uint64_t>::max(),
     std::numeric_limits<std::int64_t>::max()},
    {"plistlib writing XML", "\r", "\n"},
    {"plistlib writing XML", "a\r\nb\rc\n", "a\nb\nc\n"},
};

/// JavaScript knows no numbers but reals.
PropertyList asReal(const PropertyList& value) {
  if (const auto* number = value.get<std::int64_t>()) return static_cast<double>(*number);
  if (const auto* number = value.get<std::uint64_t>()) return static_cast<double>(*number);
  return value;
}

PropertyList asReadBy(const std::string& reader, const PropertyList& value) {
  for (const Difference& difference : kKnownDifferences) {
    if (difference.reader == reader && form(difference.written) == form(value)) {
      return difference.read;
    }
  }
  if (const auto* array = value.get<Array>()) {
    Array read;
    for (const PropertyList& entry : *array) read.push_back(asReadBy(reader, entry));
    return read;
  }
  const auto* dictionary = value.get<Dictionary>();
  if (!dictionary) return reader == "npm" ? asReal(value) : value;
  Dictionary read;
  for (const auto& [key, entry] : *dictionary) {
    read.emplace(*asReadBy(reader, key).get<std::string>(), asReadBy(reader, entry));
  }
  return read;
}

/// A text as a value and as a key.
void addText(std::vector<PropertyList>& documents, const std::string& text) {
  documents.push_back(Dictionary{{"value", text}});
  documents.push_back(Dictionary{{text, "value"}});
}

/// Texts that a reader may get wrong, and the other types' edges: all that XML can hold.
std::vector<PropertyList> wholeDocuments() {
  const std::vector<const char*> kinds[] = {
      {"", " ", " a ", "\t", "\n", "\r", "a\r\nb\rc\n", "\u00A0a", "\u200Ba"},
      {"\u0085", "a\u0085b", "\u2028", "a\u2028b", "\u2029", "\uFEFF", "\uFEFFa", "a\uFEFF"},
      {"\x7f", "\u009F", "\u202Eabc", "\uFFFD", "\U0001FFFE", "\U0010FFFF"},
      {"&<>\"'", "&amp;&#65;&lt;", "]]>", "<![CDATA[x]]>", "<!-- x -->", "<?x?>", "\\u0041%s"},
      {"e\u0301", "\u00E9", "\uD55C", "\u1112\u1161\u11AB", "\u212B", "\U0001F469\u200D\U0001F680"},
      {"constructor", "0", "CF$UID"},
  };
  std::vector<PropertyList> documents;
  for (const auto& texts : kinds) {
    for (const char* const text : texts) addText(documents, text);
  }
  addText(documents, std::string(200'000, 'a') + "\u00E9");
  addText(documents, std::string(70'000, '&'));
  using Integers = std::numeric_limits<std::int64_t>;
  using Reals = std::numeric_limits<double>;
  const PropertyList noBytes = Value(PropertyList::Data{});
  const PropertyList noEntries = Array();
  const PropertyList noKeys = Dictionary();
  const PropertyList bytes = Value(PropertyList::Data{{0, 1, 0xFF}});
  const PropertyList oneByte = Value(PropertyList::Data{{7}});
  const PropertyList manyBytes = Value(PropertyList::Data{std::vector<std::uint8_t>(1000, 0xA5)});
  const PropertyList many = Array(300, Dictionary{{"lat", 0.3}, {"lng", -1e-7}});
  const PropertyList later = Value(PropertyList::Date{789012345});
  const PropertyList earlier = Value(PropertyList::Date{-1e9});
  const PropertyList nested = Array{noEntries, Dictionary{{"", Array{""}}}};
  const PropertyList alike = Dictionary{{"e\u0301", 1}, {"\u00E9", 2}, {"A", 3}, {"a", 4}};
  const auto most = std::numeric_limits<std::uint64_t>::max();
  const Array values[] = {
      {true, false, 0, -1, 255, 65536, 1'700'000'000, Integers::min(), Integers::max(), most},
      {0.1, 11.9671, 5.0, -0.0, Reals::max(), Reals::denorm_min()},
      {Reals::infinity(), -Reals::infinity(), Reals::quiet_NaN()},
      {bytes, noBytes, oneByte, manyBytes, later, earlier, noEntries, noKeys, nested, alike, many},
  };
  for (const Array& row : values) {
    for (const PropertyList& value : row) documents.push_back(Dictionary{{"value", value}});
  }
  return documents;
}

std::vector<PropertyList> documents() {
  std::vector<PropertyList> documents = wholeDocuments();
  for (const char* const text : {"\x01\x1F", "\uFFFE\uFFFF", "a\xFF", "\xC3", "\xC0\x80",
                                 "\xED\xA0\x80", "\xED\xA0\xBD\xED\xB8\x80"}) {
    addText(documents, text);
  }
  addText(documents, std::string("a\0b", 3));
  return documents;
}

std::string written(const PropertyList& value) {
  return serializePropertyList(value).bytes.value_or("");
}

/// What of a value is left in a file of ours: what XML cannot hold is replaced.
PropertyList kept(const PropertyList& value) {
  return parsePropertyList(written(value)).value.value_or("nothing");
}

struct Reader {
  const char* name;
  /// What prints a line for each file named to it; empty when it is not installed.
  const char* command;

  friend void PrintTo(const Reader& reader, std::ostream* out) { *out << reader.name; }
};

class OtherReadersTest : public testing::TestWithParam<Reader> {
 protected:
  void SetUp() override {
    if (!*GetParam().command) GTEST_SKIP() << GetParam().name << " is not installed";
  }

  std::filesystem::path file(std::size_t number, const char* end = "") const {
    return folder.path() / (std::to_string(number) + ".plist" + end);
  }

  /// One line for each document, as the reader prints it.
  std::vector<std::string> read(const std::string& option = "") const {
    std::string files;
    for (std::size_t number = 0; number < all.size(); ++number) {
      writeBytes(file(number), written(all[number]));
      files += ' ' + file(number).string();
    }
    const ShellRun run = runInShell(GetParam().command + option + files, folder.path());
    EXPECT_EQ(run.status, 0) << run.err;
    std::vector<std::string> lines(all.size());
    std::istringstream printed(run.out);
    for (std::string& line : lines) std::getline(printed, line);
    return lines;
  }

  const std::vector<PropertyList> all = documents();
  TemporaryFolder folder;
};

TEST_P(OtherReadersTest, ReadOursValueByValue) {
  const auto lines = read();
  for (std::size_t number = 0; number < all.size(); ++number) {
    const std::string expected = form(asReadBy(GetParam().name, kept(all[number])));
    EXPECT_TRUE(lines[number] == expected)
        << lines[number].substr(0, 200) << " instead of " << expected.substr(0, 200) << " from\n"
        << written(all[number]).substr(0, 500);
  }
}

class OtherWritersTest : public OtherReadersTest {};

TEST_P(OtherWritersTest, WriteWhatWeRead) {
  read(" --rewrite");
  for (std::size_t number = 0; number < all.size(); ++number) {
    const std::pair<const char*, const char*> kinds[] = {{".binary", "plistlib"},
                                                         {".xml", "plistlib writing XML"}};
    for (const auto& [end, writer] : kinds) {
      const auto ours = parsePropertyList(bytesOf(file(number, end)));
      const std::string expected = form(asReadBy(writer, kept(all[number])));
      EXPECT_TRUE(form(ours.value.value_or("nothing")) == expected)
          << writer << ' ' << ours.damage << ' ' << expected.substr(0, 200);
    }
  }
}

TEST(OtherReadersTest, WeReadOursValueByValue) {
  for (const PropertyList& document : wholeDocuments()) {
    EXPECT_EQ(form(kept(document)), form(document));
  }
}

TEST(OtherReadersTest, LibplistReadsOursValueByValue) {
  for (const PropertyList& document : documents()) {
    const std::string bytes = written(document);
    plist_t theirs = nullptr;
    plist_from_xml(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &theirs);
    char* binary = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(theirs, &binary, &length);
    const auto read = parsePropertyList({binary, length}).value.value_or("nothing");
    plist_to_bin_free(binary);
    plist_free(theirs);
    const std::string expected = form(asReadBy("libplist", kept(document)));
    EXPECT_TRUE(form(read) == expected)
        << form(read).substr(0, 200) << " instead of " << expected.substr(0, 200);
  }
}

constexpr Reader kPlistlib{"plistlib", PLISTLIB};

std::string nameOf(const testing::TestParamInfo<Reader>& test) {
  return test.param.name;
}

INSTANTIATE_TEST_SUITE_P(All, OtherReadersTest,
                         testing::Values(kPlistlib, Reader{"GNUstep", GNUSTEP}, Reader{"npm", NPM}),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(All, OtherWritersTest, testing::Values(kPlistlib), nameOf);

}  // namespace
}  // namespace wayloom
