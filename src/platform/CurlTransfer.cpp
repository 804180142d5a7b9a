#include "platform/CurlTransfer.h"

#include <algorithm>
#include <string>
#include <utility>

namespace wayloom {

namespace {

/// A service that never stops sending header lines must not fill the memory either.
constexpr std::size_t kHeaderLimitBytes = 64 << 10;

int urlErrorCode(CURLcode result) {
  switch (result) {
    case CURLE_URL_MALFORMAT:
      return kUrlErrorBadUrl;
    case CURLE_UNSUPPORTED_PROTOCOL:
      return kUrlErrorUnsupportedUrl;
    case CURLE_OPERATION_TIMEDOUT:
      return kUrlErrorTimedOut;
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
      return kUrlErrorCannotFindHost;
    case CURLE_COULDNT_CONNECT:
      return kUrlErrorCannotConnectToHost;
    case CURLE_PARTIAL_FILE:
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_GOT_NOTHING:
      return kUrlErrorConnectionLost;
    case CURLE_TOO_MANY_REDIRECTS:
      return kUrlErrorTooManyRedirects;
    case CURLE_FILESIZE_EXCEEDED:
      return kUrlErrorDataTooLong;
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_PEER_FAILED_VERIFICATION:
      return kUrlErrorSecureConnectionFailed;
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_BAD_CONTENT_ENCODING:
      return kUrlErrorBadServerResponse;
    default:
      return kUrlErrorUnknown;
  }
}

std::string describe(int code, const CurlLibrary& curl, CURLcode result) {
  if (code == kUrlErrorTimedOut) return "The operation timed out.";
  if (code == kUrlErrorDataTooLong) return "The answer is larger than this program accepts.";
  return curl.easyStrerror(result);
}

std::string mimeType(std::string_view contentType) {
  constexpr std::string_view kBlanks = " \t";
  contentType = contentType.substr(0, contentType.find(';'));
  contentType.remove_prefix(std::min(contentType.find_first_not_of(kBlanks), contentType.size()));
  std::string type(contentType.substr(0, contentType.find_last_not_of(kBlanks) + 1));
  for (char& letter : type) {
    if (letter >= 'A' && letter <= 'Z') letter += 'a' - 'A';
  }
  return type;
}

}  // namespace

CurlTransfer::CurlTransfer(MainQueue& queue, std::weak_ptr<const void> service,
                           const WebRequest& request, std::shared_ptr<WebRequestDelegate> delegate)
    : mQueue(queue),
      mService(std::move(service)),
      mRequest(request),
      mDelegate(std::move(delegate)) {}

CurlTransfer::~CurlTransfer() {
  if (mEasy) mCurl->easyCleanup(mEasy);
}

void CurlTransfer::cancel() {
  mCancelled = true;
  mDelegate.reset();
}

CURL* CurlTransfer::open(const CurlLibrary& curl) {
  mCurl = &curl;
  mEasy = curl.easyInit();
  if (!mEasy) return nullptr;
  const bool secure = mRequest.url.starts_with("https:");
  curl.easySetopt(mEasy, CURLOPT_URL, mRequest.url.c_str());
  curl.easySetopt(mEasy, CURLOPT_PROTOCOLS_STR, "http,https");
  // What was asked for in secret is not repeated in the open because the service says so.
  curl.easySetopt(mEasy, CURLOPT_REDIR_PROTOCOLS_STR, secure ? "https" : "http,https");
  curl.easySetopt(mEasy, CURLOPT_FOLLOWLOCATION, 1L);
  curl.easySetopt(mEasy, CURLOPT_MAXREDIRS, static_cast<long>(mRequest.redirectLimit));
  curl.easySetopt(mEasy, CURLOPT_TIMEOUT_MS, static_cast<long>(mRequest.timeout.count()));
  curl.easySetopt(mEasy, CURLOPT_MAXFILESIZE_LARGE,
                  static_cast<curl_off_t>(mRequest.bodyLimitBytes));
  curl.easySetopt(mEasy, CURLOPT_NOSIGNAL, 1L);
  // Cancelling must not wait for a name server that does not answer.
  curl.easySetopt(mEasy, CURLOPT_QUICK_EXIT, 1L);
  curl.easySetopt(mEasy, CURLOPT_HEADERFUNCTION, &CurlTransfer::onHeader);
  curl.easySetopt(mEasy, CURLOPT_HEADERDATA, this);
  curl.easySetopt(mEasy, CURLOPT_WRITEFUNCTION, &CurlTransfer::onBody);
  curl.easySetopt(mEasy, CURLOPT_WRITEDATA, this);
  return mEasy;
}

void CurlTransfer::end(CURLcode result) {
  if (result == CURLE_OK) {
    tellLast([](WebRequestDelegate& delegate) { delegate.connectionDidFinishLoading(); });
    return;
  }
  const bool tooLong = mBodyBytes > mRequest.bodyLimitBytes || mHeaderBytes > kHeaderLimitBytes;
  const int code = tooLong ? kUrlErrorDataTooLong : urlErrorCode(result);
  fail(code, describe(code, *mCurl, result));
}

void CurlTransfer::fail(int code, std::string text) {
  tellLast([error = ServiceError{kUrlErrorDomain, code, std::move(text), mRequest.url}](
               WebRequestDelegate& delegate) { delegate.connectionDidFailWithError(error); });
}

std::size_t CurlTransfer::onHeader(char* line, std::size_t size, std::size_t count,
                                   void* transfer) {
  const std::string_view bytes(line, size * count);
  return static_cast<CurlTransfer*>(transfer)->receiveHeader(bytes) ? bytes.size() : 0;
}

std::size_t CurlTransfer::onBody(char* bytes, std::size_t size, std::size_t count, void* transfer) {
  const std::string_view piece(bytes, size * count);
  // Any other number than that of the bytes given makes libcurl end the transfer.
  return static_cast<CurlTransfer*>(transfer)->receiveBody(piece) ? piece.size() : piece.size() + 1;
}

bool CurlTransfer::receiveHeader(std::string_view line) {
  mHeaderBytes += line.size();
  if (mCancelled || mHeaderBytes > kHeaderLimitBytes) return false;
  const bool isHeaderEnd = line == "\r\n" || line == "\n";
  if (!isHeaderEnd) return true;
  const WebResponse header = response();
  const bool isInterim = header.statusCode < 200;
  if (!isInterim) {
    tell([header](WebRequestDelegate& delegate) { delegate.connectionDidReceiveResponse(header); });
  }
  return true;
}

bool CurlTransfer::receiveBody(std::string_view bytes) {
  mBodyBytes += bytes.size();
  if (mCancelled || mBodyBytes > mRequest.bodyLimitBytes) return false;
  tell([piece = std::string(bytes)](WebRequestDelegate& delegate) {
    delegate.connectionDidReceiveData(piece);
  });
  return true;
}

WebResponse CurlTransfer::response() const {
  WebResponse response;
  long status = 0;
  mCurl->easyGetinfo(mEasy, CURLINFO_RESPONSE_CODE, &status);
  response.statusCode = static_cast<int>(status);
  const char* url = nullptr;
  mCurl->easyGetinfo(mEasy, CURLINFO_EFFECTIVE_URL, &url);
  if (url) response.url = url;
  curl_header* contentType = nullptr;
  constexpr int kLatestAnswer = -1;
  if (mCurl->easyHeader(mEasy, "Content-Type", 0, CURLH_HEADER, kLatestAnswer, &contentType) ==
      CURLHE_OK) {
    response.mimeType = mimeType(contentType->value);
  }
  return response;
}

void CurlTransfer::tell(std::function<void(WebRequestDelegate&)> event) {
  mQueue.post([self = shared_from_this(), event = std::move(event)] {
    const auto delegate = self->mDelegate;
    if (delegate && !self->mService.expired()) event(*delegate);
  });
}

void CurlTransfer::tellLast(std::function<void(WebRequestDelegate&)> event) {
  mQueue.post([self = shared_from_this(), event = std::move(event)] {
    const auto delegate = std::exchange(self->mDelegate, nullptr);
    if (delegate && !self->mService.expired()) event(*delegate);
  });
}

}  // namespace wayloom
