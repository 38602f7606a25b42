// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// From block to block through a settings file, for those who must not take the bytes of a value for a key.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace CommonInterfaces {

using Bytes = std::vector<unsigned char>;

// False for a file that exists and cannot be read whole: what cannot be read cannot be kept.
bool LoadFile(const std::string& path, Bytes& bytes);

// Behind the header; at the beginning of a file without one.
std::size_t FindFirstBlock(const Bytes& bytes);

// Whether a whole block begins at `begin`, and where it ends. Both layouts of field records have one framing.
bool FindEndOfBlock(const Bytes& bytes, std::size_t begin, std::size_t& end);

// Whether the block that begins there has that key.
bool HasKey(const Bytes& bytes, std::size_t begin, unsigned owner, unsigned id);

// Whether the file consists of whole blocks, none of which has that key.
bool IsWholeWithout(const Bytes& bytes, unsigned owner, unsigned id);

}  // namespace CommonInterfaces
