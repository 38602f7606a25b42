// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <limits>
#include <vector>

namespace CommonInterfaces {

// Numbers in ascending order, laid out so that a bisection of many of them seldom waits for memory and never
// guesses.
//
// The keys stand in blocks of 16. Above them is a level with the last key of each block, in blocks of 16
// again, and so on up to a level of one block. A search counts in one block of each level how many keys are
// below the wanted one, which names the block of the next level: each step divides what is left by 16 without
// a conditional jump, where a plain bisection needs four steps, each with a jump that is wrong half the time,
// and a cache line for most of them (S. Sitchinava, P. Khuong & P. Morin, "Array layouts for comparison-based
// searching", J. Exp. Algorithmics 22, 2017).
//
// Keys that are not in order are searched by the plain bisection of std::lower_bound, whose steps decide what
// is found. Not changed after the constructor: every thread may search.
class KeyBlocks {
 public:
  KeyBlocks() = default;
  explicit KeyBlocks(const std::vector<int>& keys)
      : m_Count(static_cast<int>(keys.size())), m_InOrder(std::is_sorted(keys.begin(), keys.end())) {
    if (keys.empty()) return;
    m_Levels.push_back(MakeLevel(keys));
    while (m_InOrder && m_Levels.back().size() > 1) m_Levels.push_back(MakeLevel(LastKeys(m_Levels.back())));
  }

  // The position of the key, the first of several equal ones; -1 when there is none.
  int Find(int wanted) const {
    if (m_Count == 0) return -1;
    const int position = m_InOrder ? Descend(wanted) : Bisect(wanted);
    if (position == m_Count) return -1;
    // All bits where the key is another one: whether it is there is as good as random, a jump would be wrong
    // often.
    return position | -static_cast<int>(At(position) != wanted);
  }

 private:
  static constexpr int kBlockSize = 16;

  struct alignas(64) Block {
    int keys[kBlockSize];
  };
  using Level = std::vector<Block>;

  // The last block is filled up with the largest key, which is below no wanted one.
  static Level MakeLevel(const std::vector<int>& keys) {
    Level level((keys.size() + kBlockSize - 1) / kBlockSize);
    std::size_t next = 0;
    for (Block& block : level) {
      for (int& key : block.keys) {
        key = next < keys.size() ? keys[next] : std::numeric_limits<int>::max();
        ++next;
      }
    }
    return level;
  }

  static std::vector<int> LastKeys(const Level& level) {
    std::vector<int> keys;
    keys.reserve(level.size());
    for (const Block& block : level) keys.push_back(block.keys[kBlockSize - 1]);
    return keys;
  }

  // Compilers make vector instructions of it.
  static unsigned CountBelow(const Block& block, int wanted) {
    unsigned count = 0;
    for (const int key : block.keys) count += key < wanted;
    return count;
  }

  int At(int position) const {
    const auto at = static_cast<unsigned>(position);
    return m_Levels[0][at / kBlockSize].keys[at % kBlockSize];
  }

  // The position of the first key that is not below the wanted one. One exists in every level, since each
  // ends with the largest key or with the last key of all; only in front of a last block that is full can
  // there be none.
  int Descend(int wanted) const {
    if (m_Levels[0].back().keys[kBlockSize - 1] < wanted) return m_Count;
    unsigned position = 0;
    for (std::size_t level = m_Levels.size(); level-- > 0;) {
      position = position * kBlockSize + CountBelow(m_Levels[level][position], wanted);
    }
    return static_cast<int>(position);
  }

  int Bisect(int wanted) const {
    int first = 0;
    for (int length = m_Count; length > 0;) {
      const int half = length / 2;
      if (At(first + half) < wanted) {
        first += half + 1;
        length -= half + 1;
      } else {
        length = half;
      }
    }
    return first;
  }

  std::vector<Level> m_Levels;  // from the keys up
  int m_Count = 0;
  bool m_InOrder = true;
};

}  // namespace CommonInterfaces
