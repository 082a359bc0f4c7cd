#include "files/RecoveryCopy.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <random>
#include <string_view>
#include <utility>

#include "base/FileBytes.h"
#include "base/FileLock.h"
#include "base/Paths.h"
#include "base/SafeFile.h"
#include "base/Text.h"

namespace orvik {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds kOldestCopy{10};
constexpr std::size_t kMostOffers = 50;  // a user who never looks at them keeps the newest
constexpr std::size_t kIdLength = 16;
constexpr std::string_view kIdLetters = "0123456789abcdef";

// What stands after the project in its copy, as lines: readers of a project stop before them.
constexpr std::string_view kCopyHeading = "[ORVIK recovery]\r\n";
constexpr std::string_view kTime = "time=";
constexpr std::string_view kPath = "path=";
constexpr std::string_view kLineEnd = "\r\n";

std::chrono::sys_seconds SecondsOf(const ClockTime& time) {
  using namespace std::chrono;
  const auto month = static_cast<unsigned>(time.date.month);
  const auto dayOfMonth = static_cast<unsigned>(time.date.day);
  const sys_days date = year(time.date.year) / std::chrono::month(month) / day(dayOfMonth);
  return sys_seconds(date) + hours(time.hour) + minutes(time.minute) + seconds(time.second);
}

std::string TextOf(const ClockTime& time) {
  std::array<char, 80> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", time.date.year,
                time.date.month, time.date.day, time.hour, time.minute, time.second);
  return text.data();
}

std::string RandomId() {
  std::random_device random;
  std::string id;
  for (std::size_t i = 0; i < kIdLength; ++i) id += kIdLetters[random() % kIdLetters.size()];
  return id;
}

bool IsId(std::string_view id) {
  return id.size() == kIdLength && id.find_first_not_of(kIdLetters) == std::string_view::npos;
}

std::string CopyText(const std::string& project, const ClockTime& time, const std::string& path) {
  return std::string(project)
      .append(kCopyHeading)
      .append(kTime)
      .append(TextOf(time))
      .append(kLineEnd)
      .append(kPath)
      .append(FoldLineEnds(path))
      .append(kLineEnd);
}

// The line that begins with this name, after the name.
std::string Entry(std::string_view lines, std::string_view name) {
  const auto begin = lines.find(name);
  if (begin == std::string_view::npos) return {};
  lines.remove_prefix(begin + name.size());
  return std::string(lines.substr(0, lines.find(kLineEnd)));
}

}  // namespace

std::string RecoveryOffer::Name() const {
  return path.empty() ? "untitled" : FileNameOf(path);
}

RecoveryCopy::RecoveryCopy(std::string folder, Clock now)
    : folder_(std::move(folder)), now_(std::move(now)) {}

RecoveryCopy::~RecoveryCopy() = default;

// --- The window's own copy ---

// A clock that was set back makes a copy due, not eternal.
bool RecoveryCopy::IsDue() const {
  if (!lastWritten_) return true;
  const auto age = SecondsOf(now_()) - SecondsOf(*lastWritten_);
  return age >= kOldestCopy || age < std::chrono::seconds(0);
}

bool RecoveryCopy::Write(const std::string& text, const std::string& path) {
  const ClockTime now = now_();
  lastWritten_ = now;  // also where it fails: not again at every key
  if (!own_ && !Begin()) return false;
  return WriteFileSafely(CopyPath(own_->id), CopyText(text, now, path)).IsWritten();
}

// Nobody but the user may read the copies: the projects they come from may be private.
bool RecoveryCopy::Begin() {
  if (folder_.empty()) return false;
  std::error_code error;
  if (fs::create_directories(PathFromUtf8(folder_), error)) {
    fs::permissions(PathFromUtf8(folder_), fs::perms::owner_all, error);
  }
  std::string id = RandomId();
  auto lock = Lock(id);
  if (!lock) return false;
  RemoveOldest();
  own_.emplace(Locked{std::move(id), std::move(lock)});
  return true;
}

void RecoveryCopy::RemoveOldest() const {
  const auto offers = Offers();
  for (std::size_t i = kMostOffers; i < offers.size(); ++i) {
    std::error_code ignored;
    fs::remove(PathFromUtf8(CopyPath(offers[i].id)), ignored);
  }
}

void RecoveryCopy::SetAside() {
  own_.reset();
  lastWritten_.reset();
}

void RecoveryCopy::Remove() {
  std::error_code ignored;
  if (own_) fs::remove(PathFromUtf8(CopyPath(own_->id)), ignored);
  SetAside();
}

// --- Those of windows that are gone ---

std::unique_ptr<FileLock> RecoveryCopy::Lock(const std::string& id) const {
  return FileLock::Take(folder_ + id + ".lock");
}

std::vector<std::string> RecoveryCopy::Ids() const {
  std::vector<std::string> ids;
  std::error_code error;
  fs::directory_iterator file(PathFromUtf8(folder_), error);
  for (; !error && file != fs::directory_iterator(); file.increment(error)) {
    std::string id = AsciiOf(file->path().stem());
    if (file->path().extension() == ".kav" && IsId(id)) ids.push_back(std::move(id));
  }
  return ids;
}

std::optional<RecoveryOffer> RecoveryCopy::Read(const std::string& id) const {
  const auto bytes = ReadFileBytes(CopyPath(id));
  if (!bytes) return std::nullopt;
  const auto heading = bytes->rfind(kCopyHeading);
  if (heading == std::string::npos) return std::nullopt;
  const std::string_view lines = std::string_view(*bytes).substr(heading + kCopyHeading.size());
  return RecoveryOffer{id, Entry(lines, kTime), Entry(lines, kPath), bytes->substr(0, heading)};
}

std::vector<RecoveryOffer> RecoveryCopy::Offers() const {
  std::vector<RecoveryOffer> offers;
  for (const std::string& id : Ids()) {
    const auto lock = Lock(id);
    auto offer = lock ? Read(id) : std::nullopt;
    if (offer) offers.push_back(std::move(*offer));
  }
  std::ranges::sort(offers, [](const RecoveryOffer& a, const RecoveryOffer& b) {
    return std::pair(b.time, b.id) < std::pair(a.time, a.id);
  });
  return offers;
}

std::optional<RecoveryOffer> RecoveryCopy::Take(const std::string& id) {
  GiveBack();
  auto lock = IsId(id) ? Lock(id) : nullptr;
  auto offer = lock ? Read(id) : std::nullopt;
  if (offer) taken_.emplace(Locked{id, std::move(lock)});
  return offer;
}

// Not one that another window is just bringing back.
void RecoveryCopy::Discard(const std::string& id) {
  if (!Take(id)) return;
  std::error_code ignored;
  fs::remove(PathFromUtf8(CopyPath(id)), ignored);
  GiveBack();
}

void RecoveryCopy::GiveBack() {
  taken_.reset();
}

}  // namespace orvik
