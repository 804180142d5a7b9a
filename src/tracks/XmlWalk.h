#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "settings/Result.h"

namespace wayloom {

/// The names of the elements that are open, the document's own first. A prefix that is the
/// document element's own is left out; others stay, so that foreign elements keep apart.
using XmlPath = std::vector<std::string>;
using XmlAttributes = std::vector<std::pair<std::string_view, std::string_view>>;

/// How a walk goes on in an element that began.
enum class XmlStep { WithoutText, WithText, Stop };

/// Told what a document holds, in its order.
class XmlVisitor {
 public:
  /// The last name of the path begins, its attributes as they stand.
  virtual XmlStep began(const XmlPath& path, const XmlAttributes& attributes) = 0;
  /// It ends; `text` is what stood directly in it, empty unless it was
  /// asked for. False ends the walk.
  [[nodiscard]] virtual bool ended(const XmlPath& path, std::string_view text) = 0;

 protected:
  ~XmlVisitor() = default;
};

/// Walks through an XML document. It refuses what is not well formed, declarations and undeclared
/// entities, and elements more than kMaximumDepth deep; nothing is ever loaded for it. A walk that
/// the visitor ended counts as done. Of elements in each other the text of one can be asked for.
Status walkXml(std::string_view document, XmlVisitor& visitor);

/// The name of the document's own element; the rest is not looked at.
Result<std::string> xmlRootName(std::string_view document);

}  // namespace wayloom
