// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/output_pool.h"

#include <cstring>
#include <new>
#include <random>
#include <vector>

#include <gtest/gtest.h>

using CommonInterfaces::OutputPool;

namespace {

char* Get(OutputPool& pool, unsigned size) { return static_cast<char*>(pool.getMem(size)); }

TEST(OutputPoolTest, NoBlocksServeNothing) {
  OutputPool pool(1024, 0);
  EXPECT_EQ(pool.getMem(0), nullptr);
  EXPECT_EQ(pool.getMem(1), nullptr);
  int local = 0;
  EXPECT_FALSE(pool.isPoolMemory(&local));
  EXPECT_FALSE(pool.isPoolMemory(nullptr));
  pool.clear(false);
  pool.clear(true);
  EXPECT_EQ(pool.getMem(1), nullptr);
}

TEST(OutputPoolTest, BlockSizeBelowEightServesNothing) {
  for (unsigned blockSize = 0; blockSize < 8; ++blockSize) {
    OutputPool pool(blockSize, 3);
    EXPECT_EQ(pool.getMem(0), nullptr) << blockSize;
    EXPECT_EQ(pool.getMem(1), nullptr) << blockSize;
    EXPECT_EQ(pool.getMem(0xFFFFFFFFu), nullptr) << blockSize;
    pool.clear(false);
    EXPECT_EQ(pool.getMem(1), nullptr) << blockSize;
    EXPECT_FALSE(pool.isPoolMemory(nullptr)) << blockSize;
  }
}

TEST(OutputPoolTest, BlockSizeOfEightServesOnlyEmptyRequests) {
  OutputPool pool(8, 2);
  EXPECT_EQ(pool.getMem(1), nullptr);
  EXPECT_NE(pool.getMem(0), nullptr);
}

TEST(OutputPoolTest, AllButTheReservedBytesOfABlockCanBeServed) {
  OutputPool pool(64, 1);
  char* memory = Get(pool, 64 - 8);
  ASSERT_NE(memory, nullptr);
  std::memset(memory, 0x5A, 64 - 8);
  EXPECT_EQ(pool.getMem(1), nullptr);
}

TEST(OutputPoolTest, OneByteMoreThanABlockServesFailsAndLeavesTheCurrentBlock) {
  OutputPool pool(64, 3);
  char* first = Get(pool, 10);
  EXPECT_EQ(pool.getMem(64 - 7), nullptr);
  EXPECT_EQ(pool.getMem(0xFFFFFFFFu), nullptr);
  EXPECT_EQ(Get(pool, 10), first + 10) << "the next request must still be served from the first block";
}

TEST(OutputPoolTest, EveryBlockReservesItsFirstEightBytes) {
  OutputPool pool(64, 1);
  char* memory = Get(pool, 1);
  EXPECT_TRUE(pool.isPoolMemory(memory - 8));
  EXPECT_FALSE(pool.isPoolMemory(memory - 9));
}

TEST(OutputPoolTest, RequestsFollowEachOtherWithoutPaddingOrAlignment) {
  OutputPool pool(64, 1);
  char* a = Get(pool, 3);
  char* b = Get(pool, 5);
  char* c = Get(pool, 0);
  char* d = Get(pool, 1);
  EXPECT_EQ(b, a + 3);
  EXPECT_EQ(c, b + 5);
  EXPECT_EQ(d, c);
}

TEST(OutputPoolTest, ARequestOfNoBytesIsServedByTheCurrentBlockHoweverFullItIs) {
  OutputPool pool(64, 2);
  EXPECT_NE(pool.getMem(0), nullptr) << "it allocates the first block";
  char* memory = Get(pool, 56);
  EXPECT_EQ(Get(pool, 0), memory + 56);
  EXPECT_FALSE(pool.isPoolMemory(memory + 56));
  EXPECT_NE(Get(pool, 1), memory + 56) << "a byte comes from the next block";
}

TEST(OutputPoolTest, BlocksThatClearLeftUnallocatedAreAllocatedWhenTheyAreCurrent) {
  OutputPool pool(64, 2);
  pool.clear(false);  // their free counts say 56 now, and their addresses are no memory
  char* memory = Get(pool, 56);
  ASSERT_NE(memory, nullptr);
  std::memset(memory, 1, 56);
  EXPECT_TRUE(pool.isPoolMemory(memory - 8));
}

TEST(OutputPoolTest, LeftoverOfAnAbandonedBlockIsNeverServed) {
  OutputPool pool(64, 2);
  char* first = Get(pool, 40);  // leaves 16
  char* second = Get(pool, 20);
  EXPECT_FALSE(second >= first && second < first + 56);
  EXPECT_EQ(Get(pool, 4), second + 20);
}

TEST(OutputPoolTest, AFullPoolGivesNullUntilTheNextClear) {
  OutputPool pool(24, 2);
  EXPECT_NE(pool.getMem(16), nullptr);
  EXPECT_NE(pool.getMem(16), nullptr);
  EXPECT_EQ(pool.getMem(1), nullptr);
  EXPECT_EQ(pool.getMem(1), nullptr);
  pool.clear(false);
  EXPECT_NE(pool.getMem(16), nullptr);
}

TEST(OutputPoolTest, ClearThatKeepsTheBlocksServesTheSameAddressesInTheSameOrder) {
  OutputPool pool(64, 3);
  std::vector<void*> before, after;
  for (int i = 0; i < 9; ++i) before.push_back(pool.getMem(17));
  pool.clear(false);
  for (int i = 0; i < 9; ++i) after.push_back(pool.getMem(17));
  EXPECT_EQ(before, after);
  EXPECT_EQ(pool.getMem(17), nullptr);
}

TEST(OutputPoolTest, ClearThatFreesTheBlocksAllocatesNewOnesOnDemand) {
  OutputPool pool(64, 2);
  void* first = pool.getMem(50);
  void* second = pool.getMem(50);
  pool.clear(true);
  EXPECT_FALSE(pool.isPoolMemory(first));
  EXPECT_FALSE(pool.isPoolMemory(second));
  char* memory = Get(pool, 56);
  ASSERT_NE(memory, nullptr);
  std::memset(memory, 1, 56);
}

TEST(OutputPoolTest, ClearBeforeTheFirstRequestIsHarmless) {
  for (bool freeBlocks : {false, true}) {
    OutputPool pool(64, 2);
    pool.clear(freeBlocks);
    EXPECT_FALSE(pool.isPoolMemory(nullptr));
    EXPECT_NE(pool.getMem(56), nullptr);
    EXPECT_NE(pool.getMem(56), nullptr);
    EXPECT_EQ(pool.getMem(1), nullptr);
  }
}

TEST(OutputPoolTest, MemoryServedBeforeTheLastClearIsNoPoolMemory) {
  OutputPool pool(64, 2);
  char* first = Get(pool, 30);
  char* later = Get(pool, 20);
  char* other = Get(pool, 50);
  EXPECT_TRUE(pool.isPoolMemory(first));
  EXPECT_TRUE(pool.isPoolMemory(later + 19));
  EXPECT_FALSE(pool.isPoolMemory(later + 20)) << "not handed out yet";
  EXPECT_TRUE(pool.isPoolMemory(other));
  pool.clear(false);
  EXPECT_FALSE(pool.isPoolMemory(first));
  EXPECT_FALSE(pool.isPoolMemory(later));
  EXPECT_FALSE(pool.isPoolMemory(other)) << "a block behind the current one";
  EXPECT_TRUE(pool.isPoolMemory(first - 1)) << "the reserved bytes of the current block count";
  EXPECT_EQ(Get(pool, 1), first);
  EXPECT_TRUE(pool.isPoolMemory(first));
  EXPECT_FALSE(pool.isPoolMemory(first + 1));
}

TEST(OutputPoolTest, HeapAndNullAreNoPoolMemory) {
  OutputPool pool(64, 2);
  const std::vector<int> heap(4);
  pool.getMem(8);
  EXPECT_FALSE(pool.isPoolMemory(const_cast<int*>(heap.data())));
  EXPECT_FALSE(pool.isPoolMemory(nullptr));
}

TEST(OutputPoolTest, AssignedPoolSharesTheBlockTable) {
  OutputPool pool(64, 2);
  char* first = Get(pool, 4);
  // The copy is never destroyed: the table has one owner.
  alignas(OutputPool) unsigned char storage[sizeof(OutputPool)];
  auto* copy = new (storage) OutputPool(0, 0);
  *copy = pool;
  EXPECT_TRUE(copy->isPoolMemory(first));
  EXPECT_EQ(Get(*copy, 4), first + 4);
  EXPECT_EQ(Get(pool, 4), first + 8);
}

// The pool restated with plain sums, for random requests.
struct Model {
  unsigned blockSize, blockCount, current = 0;
  std::vector<unsigned> used = std::vector<unsigned>(blockCount, 0);

  // The block that serves, -1 for none; `offset` counts from the first byte behind the reserved ones.
  int Get(unsigned size, unsigned& offset) {
    for (unsigned k = current; k < blockCount; ++k) {
      if (used[k] + size > blockSize - 8) continue;
      offset = used[k];
      used[k] += size;
      current = k;
      return static_cast<int>(k);
    }
    return -1;
  }
  void Clear() {
    used.assign(blockCount, 0);
    current = 0;
  }
};

TEST(OutputPoolTest, RandomRequestsAreServedAsTheModelSays) {
  constexpr unsigned kBlockSize = 200, kBlockCount = 6;
  std::mt19937 engine(20240131);
  const auto random = [&engine] { return static_cast<unsigned>(engine()); };
  OutputPool pool(kBlockSize, kBlockCount);
  Model model{kBlockSize, kBlockCount};
  std::vector<char*> base(kBlockCount, nullptr);  // first served byte of each block, once seen
  int served = 0;
  for (int step = 0; step < 20000; ++step) {
    if (random() % 40 == 0) {
      const bool freeBlocks = random() % 3 == 0;
      pool.clear(freeBlocks);
      model.Clear();
      if (freeBlocks) base.assign(kBlockCount, nullptr);
      continue;
    }
    const unsigned size = random() % 10 == 0 ? random() % 210 : random() % 60;
    unsigned offset = 0;
    const int block = model.Get(size, offset);
    char* memory = Get(pool, size);
    ASSERT_EQ(memory == nullptr, block < 0) << step;
    if (block < 0) continue;
    ++served;
    if (base[block] == nullptr) base[block] = memory - offset;
    ASSERT_EQ(memory, base[block] + offset) << step;
    for (unsigned k = 0; k < kBlockCount; ++k) {
      if (base[k] == nullptr) continue;
      const unsigned probe = random() % 192;
      ASSERT_EQ(pool.isPoolMemory(base[k] + probe), k <= model.current && probe < model.used[k]) << step;
    }
  }
  EXPECT_GT(served, 10000);
}

}  // namespace
