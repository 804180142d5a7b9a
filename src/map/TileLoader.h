#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

#include <QtCore/QObject>

#include "map/TileSource.h"

namespace wayloom {

/// A tile drawn for a device pixel ratio.
struct TileRequest {
  TileKey key;
  double scale = 1;

  auto operator<=>(const TileRequest&) const = default;
};

/// Draws the tiles of one source on worker threads and keeps the latest of them. Shared by the maps
/// that show the source, so that together they use no more threads or memory than one. All its
/// functions are for the main thread; none waits for a tile but the destructor, which waits for
/// those being drawn.
class TileLoader : public QObject {
  Q_OBJECT

 public:
  static constexpr std::int64_t kCacheBytes = 64 << 20;

  /// The loader of `source`; the same one for as long as someone holds it.
  static std::shared_ptr<TileLoader> of(const std::shared_ptr<TileSource>& source);

  explicit TileLoader(std::shared_ptr<TileSource> source, std::int64_t cacheBytes = kCacheBytes);
  ~TileLoader() override;

  /// Replaces what `client` wants, most wanted first. What nobody wants any longer is not drawn
  /// unless it was begun. Tiles wanted stay in memory; of the others, the latest used.
  void want(const void* client, std::vector<TileRequest> tiles);
  void forget(const void* client);

  /// Whether the tile is there; it may be known not to exist, and its image be null.
  bool has(const TileRequest& tile) const;
  /// The tile's image, null if it is not there.
  QImage image(const TileRequest& tile);

  const TileSource& source() const { return *mSource; }
  std::int64_t cachedBytes() const { return mCachedBytes; }

 Q_SIGNALS:
  void tilesArrived();

 private:
  struct Entry {
    QImage image;
    std::uint64_t lastUse = 0;
  };
  struct Drawn {
    TileRequest tile;
    QImage image;
  };

  void work(const std::stop_token& stop);
  QImage draw(const TileRequest& tile) const;
  void collect();
  void keep(const Drawn& drawn);
  void trim();
  static std::int64_t bytesOf(const QImage& image);

  const std::shared_ptr<TileSource> mSource;
  const std::int64_t mCacheLimitBytes;

  std::map<const void*, std::vector<TileRequest>> mWanted;
  std::map<TileRequest, Entry> mCache;
  std::int64_t mCachedBytes = 0;
  std::uint64_t mUses = 0;

  // Shared with the workers.
  std::mutex mMutex;
  std::condition_variable_any mHasWork;
  std::deque<TileRequest> mQueue;
  std::set<TileRequest> mInWork;  // Being drawn, or drawn and not collected yet.
  std::vector<Drawn> mDrawn;

  std::vector<std::jthread> mWorkers;  // Last, so that they end first.
};

}  // namespace wayloom
