// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Writes block after block to a settings file and says so after each, until it is killed or has written all.
//   write_peer FILE FIRST_ID LAST_ID
#include <cstdio>
#include <cstdlib>
#include <string>

#include "settings/write_peer.h"

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const auto first = static_cast<unsigned>(std::atoi(argv[2]));
  const auto last = static_cast<unsigned>(std::atoi(argv[3]));
  CommonInterfaces::SettingsData settings(first, test_support::kPeerOwner, nullptr);
  for (int i = 0; i < test_support::kPeerFields; ++i) {
    const std::string record = test_support::PeerRecord(i);
    settings.CreateField(reinterpret_cast<const CommonInterfaces::FieldData*>(record.data()),
                         static_cast<int>(record.size()), false);
  }
  for (unsigned id = first; id <= last; ++id) {
    settings.SetID(id);
    settings.GetFieldAt(0)->SetData(&id);
    if (!settings.Write(argv[1])) return 1;
    std::printf("%u\n", id);
    std::fflush(stdout);
  }
  return 0;
}
