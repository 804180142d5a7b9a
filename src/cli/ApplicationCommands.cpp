#include "cli/Commands.h"
#include "cli/TextForms.h"
#include "lists/ApplicationList.h"
#include "lists/Whitelist.h"
#include "platform/HomeScreen.h"

namespace wayloom {

namespace {

Whitelist load(CommandLine& line) {
  line.warnOfDamage(SettingsFile::Whitelist);
  Whitelist whitelist(line.files());
  whitelist.load();
  return whitelist;
}

/// One line of a table; identifiers and names come from outside.
std::string row(bool ticked, const std::string& identifier) {
  return std::string(ticked ? "yes" : "no") + '\t' + oneLine(identifier);
}

nlohmann::json entryJson(bool ticked, const std::string& identifier) {
  return {{"identifier", identifier}, {"ticked", ticked}};
}

/// Joins rows with line ends; the note stands for a table without rows.
class Table {
 public:
  void add(const std::string& row, nlohmann::json json) {
    if (!mAnswer.json.empty()) mAnswer.text += '\n';
    mAnswer.text += row;
    mAnswer.json.push_back(std::move(json));
  }
  Answer orNote(const char* note) && {
    if (mAnswer.json.empty()) mAnswer.text = note;
    return std::move(mAnswer);
  }

 private:
  Answer mAnswer{{}, nlohmann::json::array()};
};

}  // namespace

ExitStatus listWhitelist(CommandLine& line) {
  const Whitelist whitelist = load(line);
  Table table;
  for (const auto& [identifier, value] : whitelist.entries()) {
    const bool ticked = whitelist.isTicked(identifier);
    table.add(row(ticked, identifier), entryJson(ticked, identifier));
  }
  return line.answer(std::move(table).orNote(
      "the whitelist is empty; tick an application with 'whitelist toggle ID'"));
}

ExitStatus toggleWhitelist(CommandLine& line, const std::string& identifier) {
  if (identifier.empty() || storableIdentifier(identifier) != identifier) {
    return line.wrongUsage("the identifier must be text without control characters; see 'apps'");
  }
  line.takeTurn();
  Whitelist whitelist = load(line);
  if (const Status written = whitelist.toggle(identifier); !written) {
    return line.fail(written.message());
  }
  const bool ticked = whitelist.isTicked(identifier);
  return line.answer({row(ticked, identifier), entryJson(ticked, identifier)});
}

ExitStatus listApplications(CommandLine& line) {
  const auto applications = ApplicationList::installedAppModel(*systemHomeScreen());
  if (!applications) return line.fail("the home screen gives no list of applications");
  const Whitelist whitelist = load(line);
  Table table;
  for (const ApplicationModel& application : *applications) {
    const bool ticked = whitelist.isTicked(application.appBundle);
    nlohmann::json json = entryJson(ticked, application.appBundle);
    json["name"] = application.appName;
    json["icon"] = application.appIcon.has_value();
    table.add(row(ticked, application.appBundle) + '\t' + oneLine(application.appName),
              std::move(json));
  }
  return line.answer(std::move(table).orNote("no applications are installed here"));
}

}  // namespace wayloom
