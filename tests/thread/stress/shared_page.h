// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <string>

namespace stress {

enum PeerState : unsigned { kIdle, kTaking, kHolding, kGiving, kDone, kFailed };

// What a round and the processes that it has started tell each other. Zero at first.
struct Page {
  static constexpr int kSlots = 16;
  struct Peer {
    std::atomic<unsigned> state;   // PeerState, set by the process itself
    std::atomic<unsigned> doomed;  // set before it is killed
    std::atomic<unsigned> operations;
  };
  Peer peers[kSlots];
  std::atomic<int> inside;
  std::atomic<unsigned> stop;
};
static_assert(std::atomic<unsigned>::is_always_lock_free);

// A page that processes share under a name of letters and digits. Who makes it also takes the name away.
class SharedPage {
 public:
  SharedPage(const std::string& name, bool make);
  ~SharedPage();
  SharedPage(const SharedPage&) = delete;
  SharedPage& operator=(const SharedPage&) = delete;

  Page* operator->() const { return m_Page; }
  Page& operator*() const { return *m_Page; }

 private:
  std::string m_Name;
  bool m_Made;
  void* m_Handle = nullptr;
  Page* m_Page = nullptr;
};

}  // namespace stress
