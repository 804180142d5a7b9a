#include "map/TileLoader.h"

#include <algorithm>
#include <sys/resource.h>
#include <utility>

namespace wayloom {

namespace {
constexpr int kMostWorkers = 16;

/// Where a thread and the main thread both want the processor, the main thread shall have it.
void yieldToMainThread() {
  constexpr int kNice = 10;
  setpriority(PRIO_PROCESS, 0, kNice);  // On Linux this is the calling thread's own.
}
}  // namespace

std::shared_ptr<TileLoader> TileLoader::of(const std::shared_ptr<TileSource>& source) {
  static std::map<const TileSource*, std::weak_ptr<TileLoader>> loaders;
  std::erase_if(loaders, [](const auto& entry) { return entry.second.expired(); });
  if (!source) return nullptr;
  auto loader = loaders[source.get()].lock();
  if (!loader) {
    loader = std::make_shared<TileLoader>(source);
    loaders[source.get()] = loader;
  }
  return loader;
}

TileLoader::TileLoader(std::shared_ptr<TileSource> source, std::int64_t cacheBytes)
    : mSource(std::move(source)), mCacheLimitBytes(cacheBytes) {
  const int count = std::clamp(mSource->concurrency(), 1, kMostWorkers);
  for (int i = 0; i < count; ++i) {
    mWorkers.emplace_back([this](const std::stop_token& stop) { work(stop); });
  }
}

TileLoader::~TileLoader() {
  for (std::jthread& worker : mWorkers) worker.request_stop();
}

void TileLoader::want(const void* client, std::vector<TileRequest> tiles) {
  mWanted[client] = std::move(tiles);
  {
    const std::lock_guard lock(mMutex);
    mQueue.clear();
    std::set<TileRequest> queued;
    for (const auto& [owner, wanted] : mWanted) {
      for (const TileRequest& tile : wanted) {
        if (!mCache.contains(tile) && !mInWork.contains(tile) && queued.insert(tile).second) {
          mQueue.push_back(tile);
        }
      }
    }
  }
  mHasWork.notify_all();
}

void TileLoader::forget(const void* client) {
  want(client, {});
  mWanted.erase(client);
}

bool TileLoader::has(const TileRequest& tile) const {
  return mCache.contains(tile);
}

QImage TileLoader::image(const TileRequest& tile) {
  const auto entry = mCache.find(tile);
  if (entry == mCache.end()) return {};
  entry->second.lastUse = ++mUses;
  return entry->second.image;
}

void TileLoader::work(const std::stop_token& stop) {
  yieldToMainThread();
  while (true) {
    TileRequest tile;
    {
      std::unique_lock lock(mMutex);
      if (!mHasWork.wait(lock, stop, [this] { return !mQueue.empty(); })) return;
      if (stop.stop_requested()) return;
      tile = mQueue.front();
      mQueue.pop_front();
      mInWork.insert(tile);
    }
    QImage image = draw(tile);
    bool isFirst = false;
    {
      const std::lock_guard lock(mMutex);
      mDrawn.push_back({tile, std::move(image)});
      isFirst = mDrawn.size() == 1;
    }
    // Not under the lock: the main thread wakes at once, and would wait for this slower thread.
    if (isFirst) QMetaObject::invokeMethod(this, &TileLoader::collect, Qt::QueuedConnection);
  }
}

QImage TileLoader::draw(const TileRequest& tile) const {
  try {
    QImage image = mSource->draw(tile.key, tile.scale);
    const bool isReady = image.isNull() || image.format() == QImage::Format_RGB32 ||
                         image.format() == QImage::Format_ARGB32_Premultiplied;
    return isReady ? image : image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  } catch (...) {
    return {};  // A tile that cannot be drawn is none.
  }
}

void TileLoader::collect() {
  std::vector<Drawn> drawn;
  {
    const std::lock_guard lock(mMutex);
    drawn.swap(mDrawn);
    for (const Drawn& tile : drawn) mInWork.erase(tile.tile);
  }
  for (const Drawn& tile : drawn) keep(tile);
  trim();
  if (!drawn.empty()) Q_EMIT tilesArrived();
}

void TileLoader::keep(const Drawn& drawn) {
  Entry& entry = mCache[drawn.tile];
  mCachedBytes += bytesOf(drawn.image) - (entry.lastUse > 0 ? bytesOf(entry.image) : 0);
  entry = {drawn.image, ++mUses};
}

void TileLoader::trim() {
  if (mCachedBytes <= mCacheLimitBytes) return;
  std::set<TileRequest> wanted;
  for (const auto& [owner, tiles] : mWanted) wanted.insert(tiles.begin(), tiles.end());
  std::vector<std::pair<std::uint64_t, TileRequest>> byUse;
  for (const auto& [tile, entry] : mCache) {
    if (!wanted.contains(tile)) byUse.emplace_back(entry.lastUse, tile);
  }
  std::sort(byUse.begin(), byUse.end());
  for (const auto& [use, tile] : byUse) {
    if (mCachedBytes <= mCacheLimitBytes) return;
    const auto entry = mCache.find(tile);
    mCachedBytes -= bytesOf(entry->second.image);
    mCache.erase(entry);
  }
}

std::int64_t TileLoader::bytesOf(const QImage& image) {
  constexpr std::int64_t kEntryBytes = 256;  // So that tiles known to be missing are bounded too.
  return image.sizeInBytes() + kEntryBytes;
}

}  // namespace wayloom
