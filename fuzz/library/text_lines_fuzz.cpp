// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Text files line by line. The first byte of the input chooses how the file is read, the rest is the file.
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "fuzz/scratch.h"
#include "utils/file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const bool comments = (data[0] & 1) != 0;
  const unsigned lineSize = 1u << (data[0] >> 1 & 7);  // 1 to 128
  const unsigned bufferSize = 1u << (data[0] >> 4);    // 1 to 32768
  const std::string path = fuzz::Scratch::Get().Write("data/lines.txt", data + 1, size - 1);

  MTextFile file(comments, '!', '}', lineSize);
  fuzz::Require(file.Open(path.c_str(), false), "the file can be opened");
  std::size_t taken = 0;
  std::vector<char> buffer(bufferSize + 1, 'x');
  while (const int count = file.Readln(buffer.data(), bufferSize)) {
    fuzz::Require(count > 0, "a line takes at least one byte");
    taken += static_cast<std::size_t>(count);
    const std::size_t length = std::strlen(buffer.data());
    fuzz::Require(length < bufferSize && length < lineSize, "a line fits the buffer and the line length");
    fuzz::Require(std::memchr(buffer.data(), '\n', length) == nullptr, "a line has no line end in it");
    fuzz::Require(buffer[bufferSize] == 'x', "nothing is written behind the buffer");
  }
  fuzz::Require(taken <= size - 1, "lines take no more bytes than the file has");
  fuzz::Require(buffer[0] == '\0', "after the last line the buffer is empty");
  file.Close();

  fuzz::Require(file.Open(path.c_str(), false), "the file can be opened again");
  int number = 0;
  while (file.Readln(number)) {
  }
  return 0;
}
