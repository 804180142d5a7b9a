#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wayloom {

/// Names and values in their order, unescaped; those without a value are left out.
using LinkParameters = std::vector<std::pair<std::string, std::string>>;

/// The parts of a link, unescaped.
struct LinkParts {
  std::string host;
  /// What stands between slashes.
  std::vector<std::string> path;
  /// Those of the query, then those of the fragment.
  LinkParameters parameters;
  /// All of it, as there are queries without names.
  std::string query;
  std::string fragment;
};

/// Takes a link apart, with its scheme or without; any text has parts.
LinkParts linkParts(std::string_view link);

/// The parameters of a query: "a=1&b=2".
LinkParameters linkParameters(std::string_view query);

/// A text without the escapes of links: "%2C" is a comma, "+" stays.
std::string unescaped(std::string_view text);

/// The value of the first parameter of a name; null when there is none.
const std::string* valueOf(const LinkParameters& parameters, std::string_view name);

/// Cuts off what stands before `separator`, which goes too; everything if it is not there.
std::string_view takeUntil(std::string_view& text, char separator);

}  // namespace wayloom
