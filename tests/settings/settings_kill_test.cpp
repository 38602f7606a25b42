// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A program that is stopped in the middle of writing settings loses nothing that it had written before.
#include <chrono>
#include <random>
#include <set>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "settings/settings_block.h"
#include "settings/write_peer.h"
#include "support/temp_dir.h"
#include "thread/child_process.h"
#include "utils/file.h"

namespace test_support {
namespace {

using CommonInterfaces::FindBlock;
using CommonInterfaces::SectionRecord;
using CommonInterfaces::SettingField;

constexpr int kFiles = 10, kStopsPerFile = 20;
constexpr unsigned kWritesPerStop = 5;

// Whether the first block with that id is the whole one that was written.
bool IsWhole(const std::string& path, unsigned id) {
  MFile file;
  std::vector<SectionRecord> sections;
  CommonInterfaces::FieldArena arena;
  std::vector<SettingField*> fields;
  bool whole = file.Open(path.c_str(), MFile::kRead) && FindBlock(file, kPeerOwner, id) &&
               ReadSectionRecords(file, sections) && ReadFieldRecords(file, arena, fields) &&
               sections.size() == 1 && fields.size() == static_cast<std::size_t>(kPeerFields);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    unsigned value = 0;
    whole =
        whole && fields[i]->GetElement(&value, 0) && value == (i == 0 ? id : static_cast<unsigned>(i) * 3);
    ReleaseField(fields[i]);
  }
  return whole;
}

// The thousand writes run in as many processes as are stopped: each writes on where the last one was stopped,
// behind whatever that left of its last block, and takes a new id for it. Returns the ids of the blocks that
// were written whole.
std::set<unsigned> WriteWithStops(const std::string& path, std::mt19937& random) {
  std::set<unsigned> written;
  unsigned next = 1;
  const auto hear = [&](ChildProcess& peer) {
    const std::string line = peer.ReadLine();
    if (line.empty()) return false;
    written.insert(static_cast<unsigned>(std::stoul(line)));
    return true;
  };
  for (int stop = 0; stop < kStopsPerFile; ++stop) {
    ChildProcess peer({WRITE_PEER, path, std::to_string(next), std::to_string(next + 1000)});
    for (unsigned i = 0; i < kWritesPerStop; ++i) EXPECT_TRUE(hear(peer));
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 400));
    peer.Kill();
    while (hear(peer)) {  // it wrote on meanwhile
    }
    next = *written.rbegin() + 2;  // the id between is that of the block that was being written
  }
  return written;
}

TEST(SettingsKill, TwoHundredStopsInAThousandWritesLoseNoEarlierBlock) {
  TempRoots roots;
  std::mt19937 random(17);
  std::size_t written = 0, lost = 0;
  for (int file = 0; file < kFiles; ++file) {
    const std::string path = roots.dir.Path("work/settings" + std::to_string(file) + ".data");
    const std::set<unsigned> ids = WriteWithStops(path, random);
    written += ids.size();
    for (const unsigned id : ids) lost += IsWhole(path, id) ? 0 : 1;
  }
  EXPECT_GE(written, 1000u);
  EXPECT_EQ(lost, 0u) << "of " << written;
}

}  // namespace
}  // namespace test_support
