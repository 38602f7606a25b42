// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Writing settings files: appending a block, and the pieces that every file is made of.
#include <algorithm>

#include "common_interfaces/settings_data.h"
#include "settings/settings_block.h"
#include "utils/bytes.h"
#include "utils/file.h"
#include "utils/one_thread.h"
#include "utils/path.h"

namespace CommonInterfaces {

// A block that is appended leaves every earlier one readable even when the writing stops in the middle.
bool SettingsData::Write(const char* fileName) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const std::string path = ZentharPath::GetWorkPath(fileName);
  const std::vector<unsigned char> head = MakeBlockHead();  // without memory for it no file is touched
  MFile file;
  if (path.empty() || !file.Open(path.c_str(), MFile::kWrite)) return false;
  RaiseVersion();
  const Sink sink = [&file](const void* bytes, unsigned size) { return file.Write(bytes, size) == size; };
  WriteHeader(sink);
  file.Seek(2, 0);
  WriteBlock(sink, head);
  return true;
}

void SettingsData::RaiseVersion() { m_Version = std::max(m_Version, s_WorkspaceVersion); }

bool SettingsData::WriteHeader(const Sink& sink) const {
  unsigned char header[kSettingsHeaderSize];
  std::copy_n(kSettingsFileTag, sizeof kSettingsFileTag, header);
  StoreLE32(header + sizeof kSettingsFileTag, m_Version);
  return sink(header, sizeof header);
}

std::vector<unsigned char> SettingsData::MakeBlockHead() const {
  const int sectionCount = std::min(GetSectionCount(), kMaxFileSections);
  std::vector<unsigned char> head(
      static_cast<std::size_t>(kBlockKeySize + 2 + sectionCount * kSectionRecordSize + 4));
  unsigned char* to = head.data();
  StoreLE32(to, m_Owner);
  StoreLE32(to + 4, m_ID);
  StoreLE16(to + kBlockKeySize, static_cast<unsigned short>(sectionCount));
  to += kBlockKeySize + 2;
  for (int i = 0; i < sectionCount; ++i, to += kSectionRecordSize) StoreSectionRecord(to, *GetSectionAt(i));
  StoreLE32(to, static_cast<unsigned>(Fields().size()));
  return head;
}

bool SettingsData::WriteBlock(const Sink& sink, const std::vector<unsigned char>& head) const {
  bool written = sink(head.data(), static_cast<unsigned>(head.size()));
  for (const SettingField* field : Fields()) {
    const FieldRecord record{field->m_pFieldData, field->m_RecordSize};
    written = record.size >= 0 && WriteFieldRecord(sink, record) && written;
  }
  return written;
}

}  // namespace CommonInterfaces
