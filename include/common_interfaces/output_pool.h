// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "common_interfaces/api.h"

namespace CommonInterfaces {

// Memory for the records of one frame, carved out of a few large blocks and given back all at once. A frame
// begins with clear(false); records are placed with `new (pool) StarOutput` and never deleted one by one, and
// their destructors do not run. Code that may hold a record of the pool or of the heap asks isPoolMemory
// before it deletes one.
//
// Memory is handed out to the byte, without alignment: a record placed after one of odd size stands at an odd
// address. Whoever places records keeps the sizes multiples of what the records need.
//
// A pool belongs to one thread.
class COMMON_INTERFACES_API OutputPool {
 public:
  // Bytes at the start of every block that are never handed out nor written.
  static constexpr unsigned kReservedBytes = 8;

  // `blockSize` in bytes; a block serves blockSize - 8 of them, and nothing when blockSize is below 8. Blocks
  // are allocated when they are first needed, at most `blockCount`.
  OutputPool(unsigned blockSize, unsigned blockCount);
  ~OutputPool();

  // Copies the four values as they are: the two pools then share one block table, and the table this pool had
  // before is lost. Only one of the two may go on to allocate, clear or be destroyed.
  OutputPool& operator=(const OutputPool&) = default;
  OutputPool(const OutputPool&) = delete;

  // `size` bytes, or null when no block from the current one on has room, when the heap gives no block, and
  // always for more than blockSize - 8. A request that does not fit the current block gives up the rest of it
  // until the next clear.
  COMMON_INTERFACES_INLINE void* getMem(unsigned size) {
    Block& block = m_Blocks[m_Current];
    return block.base != 0 && size <= block.free ? Take(block, size) : GetFromLaterBlock(size);
  }

  // Makes all memory free again. The blocks are kept for reuse, or returned to the heap with `freeBlocks`.
  void clear(bool freeBlocks);

  // Whether `p` lies in a block in use, from its start (the reserved bytes included) to the last byte handed
  // out since the last clear. False for null.
  bool isPoolMemory(void* p);

 private:
  // Addresses are kept as numbers: a block that is not allocated has base 0, and after clear(false) the
  // address 8 behind it.
  struct Block {
    std::uintptr_t base;  // 0: not allocated
    std::uintptr_t next;  // the first free byte
    unsigned free;        // bytes from `next` to the end of the block
  };
  static_assert(sizeof(void*) != 4 || sizeof(Block) == 12);

  static void* Take(Block& block, unsigned size) {
    void* const memory = reinterpret_cast<void*>(block.next);
    block.next += size;
    block.free -= size;
    return memory;
  }
  void* GetFromLaterBlock(unsigned size);
  void Reset(Block& block) const;
  bool Allocate(Block& block) const;

  Block* m_Blocks;  // one at least, so that there is a current one in every pool
  unsigned m_BlockSize;
  unsigned m_BlockCount;
  unsigned m_Current = 0;  // the block where the next request is tried first
};
static_assert(sizeof(void*) != 4 || sizeof(OutputPool) == 16);

}  // namespace CommonInterfaces
