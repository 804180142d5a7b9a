#include "tracks/XmlWalk.h"

#include <algorithm>
#include <expat.h>
#include <memory>

#include "tracks/Waypoint.h"

namespace wayloom {

namespace {

/// One walk reads one document.
class Walk {
 public:
  explicit Walk(XmlVisitor& visitor) : mVisitor(visitor), mParser(XML_ParserCreate(nullptr)) {
    XML_SetUserData(mParser.get(), this);
    XML_SetElementHandler(mParser.get(), onStart, onEnd);
    XML_SetCharacterDataHandler(mParser.get(), onCharacters);
    XML_SetStartDoctypeDeclHandler(mParser.get(), onDoctype);
    XML_SetSkippedEntityHandler(mParser.get(), onSkippedEntity);
  }

  Status through(std::string_view document) {
    // In pieces, so that the parser copies no more than one of them.
    constexpr std::size_t kPiece = 65536;
    for (std::size_t at = 0;; at += kPiece) {
      const std::string_view piece = document.substr(at, kPiece);
      const bool isLast = document.size() - at <= kPiece;
      if (XML_Parse(mParser.get(), piece.data(), static_cast<int>(piece.size()), isLast) !=
          XML_STATUS_OK) {
        return result();
      }
      if (isLast) return done();
    }
  }

 private:
  struct ParserDeleter {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
  };

  static Walk& from(void* walk) { return *static_cast<Walk*>(walk); }
  static void XMLCALL onStart(void* walk, const XML_Char* name, const XML_Char** attributes) {
    from(walk).start(name, attributes);
  }
  static void XMLCALL onEnd(void* walk, const XML_Char*) { from(walk).end(); }
  static void XMLCALL onCharacters(void* walk, const XML_Char* text, int length) {
    Walk& self = from(walk);
    if (self.mWanted != self.mPath.size()) return;
    self.mText.append(text, static_cast<std::size_t>(length));
  }
  static void XMLCALL onDoctype(void* walk, const XML_Char*, const XML_Char*, const XML_Char*,
                                int) {
    // It could declare entities, which are not read.
    from(walk).stop("it has a document type");
  }
  static void XMLCALL onSkippedEntity(void* walk, const XML_Char*, int) {
    from(walk).stop("it has an entity that is not declared");
  }

  void start(std::string_view name, const XML_Char** attributes) {
    if (mStopped) return;
    if (mPath.size() == kMaximumDepth) return stop("its elements are more than 100 deep");
    if (mPath.empty()) mPrefix = name.substr(0, name.find(':') + 1);
    if (!mPrefix.empty() && name.starts_with(mPrefix)) name.remove_prefix(mPrefix.size());
    mPath.emplace_back(name);
    XmlAttributes listed;
    for (; *attributes; attributes += 2) listed.emplace_back(attributes[0], attributes[1]);
    const XmlStep step = mVisitor.began(mPath, listed);
    if (step == XmlStep::Stop) return stop("");
    if (step == XmlStep::WithoutText) return;
    mWanted = mPath.size();
    mText.clear();
  }

  void end() {
    if (mStopped) return;
    const bool isWanted = mWanted == mPath.size();
    if (!mVisitor.ended(mPath, isWanted ? std::string_view(mText) : std::string_view())) stop("");
    if (isWanted) mWanted = 0;
    mPath.pop_back();
  }

  void stop(std::string why) {
    if (mStopped) return;
    mStopped = true;
    mProblem = std::move(why);
    XML_StopParser(mParser.get(), XML_FALSE);
  }

  Status result() const {
    if (mStopped) return mProblem.empty() ? done() : Status(failed(mProblem));
    return failed(XML_ErrorString(XML_GetErrorCode(mParser.get())) + std::string(" in line ") +
                  std::to_string(XML_GetCurrentLineNumber(mParser.get())));
  }

  XmlVisitor& mVisitor;
  std::unique_ptr<XML_ParserStruct, ParserDeleter> mParser;
  XmlPath mPath;
  std::string mPrefix;
  /// The depth of the element whose text is wanted; 0 for none.
  std::size_t mWanted = 0;
  std::string mText;
  bool mStopped = false;
  std::string mProblem;
};

class RootVisitor final : public XmlVisitor {
 public:
  XmlStep began(const XmlPath& path, const XmlAttributes&) override {
    name = path[0];
    return XmlStep::Stop;
  }
  bool ended(const XmlPath&, std::string_view) override { return false; }

  std::string name;
};

}  // namespace

Status walkXml(std::string_view document, XmlVisitor& visitor) {
  return Walk(visitor).through(document);
}

Result<std::string> xmlRootName(std::string_view document) {
  RootVisitor visitor;
  if (Status walked = walkXml(document, visitor); !walked) return walked.failure();
  return std::move(visitor.name);
}

}  // namespace wayloom
