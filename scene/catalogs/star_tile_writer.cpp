// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/star_tile_writer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

#include "astro/constants.h"
#include "astro/healpix.h"
#include "scene/catalogs/star_number_index.h"
#include "scene/catalogs/star_tile_layout.h"
#include "scene/catalogs/star_tile_runs.h"
#include "utils/replace_file.h"

namespace scene {
namespace {

namespace layout = star_tile_layout;

constexpr double kMostMagnitude = 32.0, kMostColour = 32.0;
constexpr double kMostMotion = 16383.0;  // milliarcseconds a year; the fastest star has 10,400

// Stars of fast motion have the first band, those up to magnitude 5 the next, and each further magnitude one.
constexpr double kFastMotion = 500.0;  // milliarcseconds a year
constexpr int kFastBand = 0, kBrightBand = 1, kFirstMagnitude = 5, kBands = 30;

// As the density of stars is known while they come in: how many there are in each cell of a coarse grid.
constexpr int kDensityOrder = 6;
constexpr std::uint32_t kDensityCells = astro::GetHealpixCellCount(kDensityOrder);

// A cell of a band holds 8 to 32 stars on the average over the sky, and where they crowd not many more than
// these. A frame then takes few stars that lie beside its window, and the index stays small.
constexpr std::uint64_t kFewestStars = 8, kMostStars = 1024;

std::int16_t ToInt16(double value) { return static_cast<std::int16_t>(std::lround(value)); }

void StoreInt16(unsigned char* to, double value) {
  StoreLE16(to, static_cast<std::uint16_t>(ToInt16(value)));
}

bool IsKnownColour(double colour) { return std::fabs(colour) <= kMostColour; }

bool HasMotion(const TileStar& star) { return !std::isnan(star.motionEast) && !std::isnan(star.motionNorth); }

std::array<unsigned char, StarTileRecord::kSize> Pack(const TileStar& star) {
  std::array<unsigned char, StarTileRecord::kSize> bytes;
  unsigned char* const to = bytes.data();
  const double turn = StarTileRecord::kTurnUnits / astro::kTurn;
  const double ra = star.ra * turn, units = std::floor(ra + 0.5);
  StoreLE32(to, static_cast<std::uint32_t>(static_cast<std::int64_t>(units)));  // whole turns fall off
  StoreLE32(to + 4, static_cast<std::uint32_t>(std::lround(star.dec * turn)));
  StoreInt16(to + 8, star.magnitude * 1000.0);
  StoreInt16(to + 10, IsKnownColour(star.colour) ? star.colour * 1000.0 : StarTileRecord::kUnknown);
  const double motionUnit = StarTileRecord::kMotionUnit;
  StoreInt16(to + 12, HasMotion(star) ? star.motionEast / motionUnit : StarTileRecord::kUnknown);
  StoreInt16(to + 14, HasMotion(star) ? star.motionNorth / motionUnit : StarTileRecord::kUnknown);
  StoreLE32(to + 16, static_cast<std::uint32_t>(star.number));
  return bytes;
}

// In kMotionUnit, rounded up.
std::uint32_t GetMotion(const StarTileRecord& star) {
  if (!star.HasMotion()) return 0;
  return static_cast<std::uint32_t>(std::ceil(
      std::hypot(static_cast<double>(star.GetMotionEast()), static_cast<double>(star.GetMotionNorth()))));
}

int ChooseBand(const StarTileRecord& star) {
  if (GetMotion(star) > kFastMotion / StarTileRecord::kMotionUnit) return kFastBand;
  const int magnitude = static_cast<int>(std::floor(star.GetMillimagnitudes() / 1000.0));
  return std::clamp(magnitude - kFirstMagnitude + 1, 0, kBands - kBrightBand - 1) + kBrightBand;
}

// What is known of a band before its stars are sorted.
struct Band {
  std::uint64_t count = 0;
  int brightest = 0, faintest = 0;
  std::uint32_t maxMotion = 0;
  std::vector<std::uint32_t> density;

  void Add(const StarTileRecord& star, std::uint32_t densityCell) {
    const int magnitude = star.GetMillimagnitudes();
    brightest = count == 0 ? magnitude : std::min(brightest, magnitude);
    faintest = count == 0 ? magnitude : std::max(faintest, magnitude);
    maxMotion = std::max(maxMotion, GetMotion(star));
    if (density.empty()) density.resize(kDensityCells);
    ++density[densityCell];
    ++count;
  }

  // Of the fullest cell, estimated below the coarse grid.
  std::uint64_t GetMost(int order) const {
    const int shift = 2 * std::max(kDensityOrder - order, 0);
    std::uint64_t most = 0, sum = 0;
    for (std::uint32_t cell = 0; cell < kDensityCells; ++cell) {
      sum = (cell & ((1u << shift) - 1u)) == 0 ? density[cell] : sum + density[cell];
      most = std::max(most, sum);
    }
    return most >> 2 * std::max(order - kDensityOrder, 0);
  }

  int ChooseOrder() const {
    int order = 0;
    const auto nextCells = [&] { return std::uint64_t{astro::GetHealpixCellCount(order + 1)}; };
    while (order < astro::kMaxHealpixOrder && nextCells() <= count / kFewestStars) ++order;
    while (order < astro::kMaxHealpixOrder && layout::IsOrderAllowed(nextCells(), count) &&
           GetMost(order) > kMostStars) {
      ++order;
    }
    return order;
  }
};

constexpr int kKeyShift = 32;  // the band above the cell of the finest grid

}  // namespace

struct StarTileWriterState {
  explicit StarTileWriterState(std::uint32_t starsInMemory) : mostInMemory(starsInMemory) {}

  bool Fail(const std::string& reason) {
    error = path + ": " + reason;
    Close();
    return false;
  }
  void Close() {
    file.Discard();
    runs.reset();
    numbers.reset();
    bands = {};
    count = 0;
  }
  std::string MakeHeader() const;
  bool WriteBand(int band, std::uint32_t index);
  bool TakeCell(int band, std::uint32_t cell, int order);
  bool WriteNumbers();
  void Report();

  std::uint32_t mostInMemory;
  std::string path, origin, error;
  FileReplacement file;
  std::unique_ptr<StarTileRuns> runs, numbers;  // by band and cell; number and place, while they are written
  std::array<Band, kBands> bands;
  std::uint64_t count = 0;
  int lowest = 0, highest = 0;

  // While writing.
  std::function<void(double)> progress;
  std::uint64_t written = 0;
  std::uint32_t place = 0;   // of the next star among all
  StarTileRuns::Entry next;  // the first that is not in a cell yet
  bool hasNext = false;
  std::vector<std::array<unsigned char, StarTileRecord::kSize>> cellStars;
  std::string cellBytes, index;
};

// The records of a cell, brightest first, whatever the order they came in.
bool StarTileWriterState::TakeCell(int band, std::uint32_t cell, int order) {
  const int shift = 2 * (astro::kMaxHealpixOrder - order);
  const std::uint64_t endKey = (std::uint64_t(band) << kKeyShift) + ((std::uint64_t{cell} + 1) << shift);
  cellStars.clear();
  for (; hasNext && next.key < endKey; hasNext = runs->Take(next)) cellStars.push_back(next.record);
  std::sort(cellStars.begin(), cellStars.end(), [](const auto& a, const auto& b) {
    const StarTileRecord left(a.data()), right(b.data());
    if (left.GetMillimagnitudes() != right.GetMillimagnitudes())
      return left.GetMillimagnitudes() < right.GetMillimagnitudes();
    return left.GetNumber() != right.GetNumber() ? left.GetNumber() < right.GetNumber() : a < b;
  });
  cellBytes.clear();
  for (const auto& star : cellStars) {
    cellBytes.append(reinterpret_cast<const char*>(star.data()), star.size());
    const auto number = static_cast<std::uint32_t>(StarTileRecord(star.data()).GetNumber());
    if (!numbers->Add({std::uint64_t{number} << kKeyShift | place++, {}})) return false;
  }
  return file.Write(cellBytes);
}

// The stars by number, once all have their places.
bool StarTileWriterState::WriteNumbers() {
  if (!numbers->Sort()) return false;
  StarTileRuns::Entry entry;
  std::string entries;
  std::uint32_t block = 0;
  bool hasEntry = numbers->Take(entry);
  while (hasEntry) {
    entries.clear();
    for (std::size_t i = 0; hasEntry && i < star_number_index::kEntries;
         ++i, hasEntry = numbers->Take(entry)) {
      star_number_index::AppendEntry(static_cast<std::uint32_t>(entry.key >> kKeyShift),
                                     static_cast<std::uint32_t>(entry.key), entries);
    }
    if (!file.Write(star_number_index::MakeBlock(block++, entries))) return false;
  }
  return true;
}

bool StarTileWriterState::WriteBand(int band, std::uint32_t number) {
  const int order = bands[band].ChooseOrder();
  const std::uint32_t cells = astro::GetHealpixCellCount(order);
  std::uint32_t first = 0;
  index.clear();
  for (std::uint32_t cell = 0; cell < cells; ++cell) {
    if (!TakeCell(band, cell, order)) return false;
    const auto stars = static_cast<std::uint32_t>(cellStars.size());
    unsigned char entry[layout::kEntrySize];
    StoreLE32(entry, first);
    StoreLE32(entry + 4, layout::GetCellCheck(number, cell, first, stars,
                                              reinterpret_cast<const unsigned char*>(cellBytes.data())));
    index.append(reinterpret_cast<const char*>(entry), sizeof entry);
    first += stars;
    Report();
  }
  return file.Write(index);
}

// Some thousand times in all.
void StarTileWriterState::Report() {
  written += cellStars.size();
  if (progress && written / 65536 != (written - cellStars.size()) / 65536)
    progress(static_cast<double>(written) / static_cast<double>(count));
}

std::string StarTileWriterState::MakeHeader() const {
  std::string entries;
  std::uint64_t fileSize = layout::kBandsAt + origin.size();
  std::uint32_t bandCount = 0;
  for (const Band& band : bands) {
    if (band.count == 0) continue;
    const int order = band.ChooseOrder();
    unsigned char entry[layout::kBandSize];
    StoreLE32(entry + layout::kOrderAt, static_cast<std::uint32_t>(order));
    StoreInt16(entry + layout::kBrightestAt, band.brightest);
    StoreInt16(entry + layout::kFaintestAt, band.faintest);
    StoreLE32(entry + layout::kCountAt, static_cast<std::uint32_t>(band.count));
    StoreLE32(entry + layout::kMotionAt, band.maxMotion);
    entries.append(reinterpret_cast<const char*>(entry), sizeof entry);
    fileSize += sizeof entry + band.count * StarTileRecord::kSize;
    fileSize += std::uint64_t{astro::GetHealpixCellCount(order)} * layout::kEntrySize;
    ++bandCount;
  }
  fileSize += star_number_index::GetSize(count);
  std::string header(layout::kBandsAt, '\0');
  header += entries + origin;
  auto* const to = reinterpret_cast<unsigned char*>(header.data());
  std::memcpy(to, layout::kMagic, layout::kVersionAt);
  StoreLE32(to + layout::kVersionAt, layout::kVersion);
  StoreLE32(to + layout::kHeaderSizeAt, static_cast<std::uint32_t>(header.size()));
  StoreLE32(to + layout::kBandCountAt, bandCount);
  StoreLE64(to + layout::kStarCountAt, count);
  StoreLE64(to + layout::kFileSizeAt, fileSize);
  StoreLE32(to + layout::kLowestAt, static_cast<std::uint32_t>(lowest));
  StoreLE32(to + layout::kHighestAt, static_cast<std::uint32_t>(highest));
  StoreLE32(to + layout::kCheckAt, layout::GetHeaderCheck(to, header.size()));
  return header;
}

StarTileWriter::StarTileWriter() : StarTileWriter(kStarsInMemory) {}
StarTileWriter::StarTileWriter(std::uint32_t starsInMemory)
    : m_State(std::make_unique<StarTileWriterState>(starsInMemory)) {}
StarTileWriter::~StarTileWriter() = default;

std::uint64_t StarTileWriter::GetCount() const { return m_State->count; }
const std::string& StarTileWriter::GetError() const { return m_State->error; }

bool StarTileWriter::Open(const char* path, const std::string& origin) {
  StarTileWriterState& state = *m_State;
  state.Close();
  state.path = path;
  state.origin = origin.substr(0, layout::kMostOrigin);
  if (!state.file.Open(path)) return state.Fail("cannot be written: " + state.file.GetReason());
  state.runs = std::make_unique<StarTileRuns>(state.path, state.mostInMemory);
  return true;
}

const char* StarTileWriter::FindFault(const TileStar& star) {
  constexpr double kMostTurns = 2.0;
  if (!(std::fabs(star.ra) <= kMostTurns * astro::kTurn) || !(std::fabs(star.dec) <= astro::kPi / 2.0))
    return "its place is not on the sphere";
  if (!(std::fabs(star.magnitude) <= kMostMagnitude)) return "its magnitude is not between -32 and 32";
  if (HasMotion(star) && !(std::hypot(star.motionEast, star.motionNorth) <= kMostMotion))
    return "it moves by more than 16383 milliarcseconds a year";
  return star.number > 0 ? nullptr : "its number is not above 0";
}

bool StarTileWriter::Add(const TileStar& star) {
  StarTileWriterState& state = *m_State;
  if (!state.runs) return false;
  if (const char* fault = FindFault(star)) return state.Fail(std::string("a star was refused: ") + fault);
  StarTileRuns::Entry entry;
  entry.record = Pack(star);
  const StarTileRecord record(entry.record.data());
  const std::uint32_t cell = astro::GetHealpixCell(astro::kMaxHealpixOrder, record.GetDirection().v);
  const int band = ChooseBand(record);
  if (state.count == 0xFFFFFFFFu) return state.Fail("a file has more stars than it can count");
  entry.key = (std::uint64_t(band) << kKeyShift) + cell;
  state.bands[band].Add(record, cell >> 2 * (astro::kMaxHealpixOrder - kDensityOrder));
  state.lowest = state.count == 0 ? star.number : std::min(state.lowest, star.number);
  state.highest = state.count == 0 ? star.number : std::max(state.highest, star.number);
  ++state.count;
  return state.runs->Add(entry) || state.Fail("cannot be sorted: " + state.runs->GetReason());
}

bool StarTileWriter::Commit(const std::function<void(double)>& progress) {
  StarTileWriterState& state = *m_State;
  if (!state.runs) return false;
  state.progress = progress;
  state.written = 0;
  state.place = 0;
  state.numbers = std::make_unique<StarTileRuns>(state.path + ".numbers", state.mostInMemory);
  if (!state.runs->Sort()) return state.Fail("cannot be sorted: " + state.runs->GetReason());
  bool isWritten = state.file.Write(state.MakeHeader());
  state.hasNext = state.runs->Take(state.next);
  std::uint32_t number = 0;
  for (int band = 0; isWritten && band < kBands; ++band) {
    if (state.bands[band].count > 0) isWritten = state.WriteBand(band, number++);
  }
  state.runs.reset();
  isWritten = isWritten && state.WriteNumbers();
  const std::string reason = state.numbers->GetReason();
  state.numbers.reset();
  if (!reason.empty()) return state.Fail("cannot be sorted: " + reason);
  if (!isWritten || !state.file.Commit()) return state.Fail("cannot be written: " + state.file.GetReason());
  const std::uint64_t count = state.count;
  state.Close();
  state.count = count;
  return true;
}

}  // namespace scene
