// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/output_pool.h"

#include <new>

namespace CommonInterfaces {

// A pool without blocks has a current one too, which is never allocated and never written: all such pools
// share it.
OutputPool::OutputPool(unsigned blockSize, unsigned blockCount)
    : m_BlockSize(blockSize), m_BlockCount(blockCount) {
  static Block none = {};
  m_Blocks = blockCount != 0 ? new Block[blockCount]{} : &none;
}

OutputPool::~OutputPool() {
  clear(true);
  if (m_BlockCount != 0) delete[] m_Blocks;
}

// For a request that the current block cannot serve, or that is the first of all.
void* OutputPool::GetFromLaterBlock(unsigned size) {
  // Blocks too small for their own reserved bytes are not even allocated: their free count would wrap around.
  if (m_BlockSize < kReservedBytes) return nullptr;
  for (unsigned i = m_Current; i < m_BlockCount; ++i) {
    Block& block = m_Blocks[i];
    if (block.base == 0 && !Allocate(block)) return nullptr;
    if (block.free < size) continue;
    // Blocks before this one are not looked at again until clear, whatever room they have left: one
    // comparison a request, however full the pool is.
    m_Current = i;
    return Take(block, size);
  }
  return nullptr;
}

void OutputPool::clear(bool freeBlocks) {
  for (unsigned i = 0; i < m_BlockCount; ++i) {
    Block& block = m_Blocks[i];
    if (freeBlocks && block.base != 0) {
      ::operator delete(reinterpret_cast<void*>(block.base));
      block = {};
    } else {
      // Blocks that are not allocated too: the values are harmless, since everyone looks at the base first.
      Reset(block);
    }
  }
  m_Current = 0;
}

bool OutputPool::isPoolMemory(void* p) {
  const auto address = reinterpret_cast<std::uintptr_t>(p);
  for (unsigned i = 0; i <= m_Current && i < m_BlockCount; ++i) {
    const Block& block = m_Blocks[i];
    if (block.base != 0 && block.base <= address && address < block.next) return true;
  }
  return false;
}

void OutputPool::Reset(Block& block) const {
  block.next = block.base + kReservedBytes;
  block.free = m_BlockSize < kReservedBytes ? 0 : m_BlockSize - kReservedBytes;
}

bool OutputPool::Allocate(Block& block) const {
  void* memory = ::operator new(m_BlockSize, std::nothrow);
  if (memory == nullptr) return false;
  block.base = reinterpret_cast<std::uintptr_t>(memory);
  Reset(block);
  return true;
}

}  // namespace CommonInterfaces
