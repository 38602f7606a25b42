// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/animation.h"

#include <cstdint>
#include <string_view>

#include "paint/picture_file.h"
#include "utils/bytes.h"
#include "utils/checksum.h"
#include "utils/replace_file.h"

namespace paint {
namespace {

// PNG (third edition, W3C 2025): a signature, then chunks of length, type, content and checksum, numbers with
// the highest byte first. The first frame is the picture itself; a chunk fcTL goes before each frame, and
// what is IDAT in a picture is fdAT with a number in the frames behind the first.
constexpr std::string_view kSignature = "\x89PNG\r\n\x1a\n";
constexpr std::size_t kFrame = 12;  // bytes of a chunk around its content

std::string MakeNumber(std::uint32_t value) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xff);
  return bytes;
}

std::string MakeChunk(std::string_view type, std::string_view content) {
  std::string chunk(type);
  chunk += content;
  return MakeNumber(static_cast<std::uint32_t>(content.size())) + chunk + MakeNumber(GetCrc32(chunk));
}

}  // namespace

struct Animation::State {
  std::string MakeControl();
  std::string MakeFrame(std::string_view png);

  int count, rate, added = 0;
  std::uint32_t number = 0;  // of the next chunk of the animation
  std::string header;        // content of the first frame's IHDR: its size and form
  std::string path;
  FileReplacement file;
};

// The whole picture, for its part of a second, in place of the one before.
std::string Animation::State::MakeControl() {
  std::string control = MakeNumber(number++) + header.substr(0, 8) + MakeNumber(0) + MakeNumber(0);
  control += {0, 1, static_cast<char>(rate >> 8), static_cast<char>(rate & 0xff), 0, 0};
  return MakeChunk("fcTL", control);
}

// The chunks of a frame, from a picture as it is written.
std::string Animation::State::MakeFrame(std::string_view png) {
  const bool first = added == 0;
  std::string frame;
  if (first) {
    frame = std::string(kSignature) + MakeChunk("IHDR", header) +
            MakeChunk("acTL", MakeNumber(static_cast<std::uint32_t>(count)) + MakeNumber(0));
  }
  frame += MakeControl();
  for (std::size_t at = kSignature.size(); at + kFrame <= png.size();) {
    const std::size_t length = LoadBE32(png.data() + at);
    if (png.substr(at + 4, 4) == "IDAT") {
      const auto content = png.substr(at + 8, length);
      frame += first ? MakeChunk("IDAT", content) : MakeChunk("fdAT", MakeNumber(number++) += content);
    }
    at += kFrame + length;
  }
  return frame;
}

Animation::Animation(int count, int rate) : m_State(std::make_unique<State>()) {
  m_State->count = count;
  m_State->rate = rate;
}
Animation::~Animation() = default;

bool Animation::Open(const std::string& path, std::string& error) {
  m_State->path = path;
  if (m_State->file.Open(path.c_str())) return true;
  error = path + ": cannot be written: " + m_State->file.GetReason();
  return false;
}

bool Animation::Add(const scene::DisplayList& list, std::string& error) {
  constexpr std::size_t kHeader = 13;  // bytes of an IHDR
  State& state = *m_State;
  std::string png;
  if (!MakePng(list, png, error)) {
    error = state.path + ": cannot be drawn: " + error;
    return false;
  }
  const std::string header = png.substr(kSignature.size() + 8, kHeader);
  if (state.added == 0) state.header = header;
  if (state.added == state.count || header != state.header) {
    error =
        state.path + ": cannot be drawn: " + (header != state.header ? "a frame of another size" : "full");
    return false;
  }
  const bool written = state.file.Write(state.MakeFrame(png));
  ++state.added;
  if (!written) error = state.path + ": cannot be written: " + state.file.GetReason();
  return written;
}

bool Animation::Close(std::string& error) {
  State& state = *m_State;
  if (state.added < state.count) state.file.Fail("frames are missing");
  if (state.file.Write(MakeChunk("IEND", "")) && state.file.Commit()) return true;
  error = state.path + ": cannot be written: " + state.file.GetReason();
  return false;
}

}  // namespace paint
