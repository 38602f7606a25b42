// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "thread/name_digest.h"

#include <cstdint>
#include <cstdio>

namespace thread {
namespace {

// 64-bit FNV-1a (Fowler, Noll and Vo).
std::uint64_t Hash(const std::string& text, std::uint64_t h) {
  for (const char c : text) h = (h ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
  return h;
}

}  // namespace

// With two starting values, the algorithm's own and another.
std::string MakeNameDigest(const std::string& name) {
  char digest[33];
  std::snprintf(digest, sizeof digest, "%016llx%016llx",
                static_cast<unsigned long long>(Hash(name, 0xCBF29CE484222325u)),
                static_cast<unsigned long long>(Hash(name, 0x9AE16A3B2F90404Fu)));
  return digest;
}

}  // namespace thread
