#include "cli/Commands.h"
#include "cli/Table.h"
#include "lists/ApplicationList.h"
#include "lists/Whitelist.h"
#include "lists/WhitelistSets.h"
#include "platform/HomeScreen.h"

namespace wayloom {

namespace {

Result<Whitelist> load(CommandLine& line) {
  Whitelist whitelist(line.files());
  Status loaded = whitelist.load();
  return loaded ? Result<Whitelist>(std::move(whitelist)) : loaded.failure();
}

/// Turns a tick over in one turn; answers the changed list.
Result<Whitelist> toggle(CommandLine& line, const std::string& identifier) {
  const auto turn = line.files().takeTurn();
  if (!turn) return turn.failure();
  auto whitelist = load(line);
  if (!whitelist) return whitelist.failure();
  Status toggled = whitelist->toggle(identifier);
  return toggled ? whitelist : toggled.failure();
}

const char* tickText(bool ticked) {
  return ticked ? "yes" : "no";
}

nlohmann::json entryJson(bool ticked, const std::string& identifier) {
  return {{"identifier", identifier}, {"ticked", ticked}};
}

}  // namespace

ExitStatus listWhitelist(CommandLine& line) {
  const auto whitelist = load(line);
  if (!whitelist) return line.fail(whitelist.failure());
  Table table;
  for (const auto& [identifier, value] : whitelist->entries()) {
    const bool ticked = whitelist->isTicked(identifier);
    table.add({tickText(ticked), identifier}, entryJson(ticked, identifier));
  }
  return line.answer(std::move(table).orNote(
      "the whitelist is empty; tick an application with 'whitelist toggle ID'"));
}

ExitStatus toggleWhitelist(CommandLine& line, const std::string& identifier) {
  if (identifier.empty() || storableIdentifier(identifier) != identifier) {
    return line.wrongUsage("the identifier must be text without control characters; see 'apps'");
  }
  const auto whitelist = toggle(line, identifier);
  if (!whitelist) return line.fail(whitelist.failure());
  const bool ticked = whitelist->isTicked(identifier);
  return line.answer({tableRow({tickText(ticked), identifier}), entryJson(ticked, identifier)});
}

ExitStatus listWhitelistSets(CommandLine& line) {
  const auto sets = WhitelistSets().all();
  if (!sets) return line.fail(sets.failure());
  Table table;
  for (const WhitelistSets::Set& set : *sets) {
    table.add({std::to_string(set.count), set.name}, {{"name", set.name}, {"ticked", set.count}});
  }
  return line.answer(
      std::move(table).orNote("no sets; keep the ticks with 'whitelist set save NAME'"));
}

ExitStatus saveWhitelistSet(CommandLine& line, const std::string& name) {
  const auto whitelist = load(line);
  if (!whitelist) return line.fail(whitelist.failure());
  const Status saved = WhitelistSets().save(name, *whitelist);
  return saved ? listWhitelistSets(line) : line.fail(saved.failure());
}

ExitStatus useWhitelistSet(CommandLine& line, const std::string& name) {
  auto whitelist = load(line);
  if (!whitelist) return line.fail(whitelist.failure());
  const Status used = WhitelistSets().use(name, *whitelist);
  return used ? listWhitelist(line) : line.fail(used.failure());
}

ExitStatus removeWhitelistSet(CommandLine& line, const std::string& name) {
  const Status removed = WhitelistSets().remove(name);
  return removed ? listWhitelistSets(line) : line.fail(removed.failure());
}

ExitStatus listApplications(CommandLine& line) {
  const auto applications = ApplicationList::installedAppModel(*systemHomeScreen());
  if (!applications) return line.fail("the home screen gives no list of applications");
  const auto whitelist = load(line);
  if (!whitelist) return line.fail(whitelist.failure());
  Table table;
  for (const ApplicationModel& application : *applications) {
    const bool ticked = whitelist->isTicked(application.appBundle);
    nlohmann::json json = entryJson(ticked, application.appBundle);
    json["name"] = application.appName;
    json["icon"] = application.appIcon.has_value();
    table.add({tickText(ticked), application.appBundle, application.appName}, std::move(json));
  }
  return line.answer(std::move(table).orNote("no applications are installed here"));
}

}  // namespace wayloom
