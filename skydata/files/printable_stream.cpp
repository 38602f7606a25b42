// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/printable_stream.h"

#include <exception>
#include <string_view>

#include "utils/messages.h"

namespace skydata {

PrintableStream::PrintableStream(std::ostream& target) : std::ostream(nullptr), m_Lines(target) {
  rdbuf(&m_Lines);
  exceptions(std::ios_base::badbit);
}

// Half a line is of no use where the rest of it was lost.
PrintableStream::~PrintableStream() {
  try {
    if (std::uncaught_exceptions() == 0) m_Lines.HandOver();
  } catch (const std::exception&) {
    rdbuf(nullptr);
  }
}

void PrintableStream::Lines::HandOver() {
  m_Target << MakePrintable(m_Line);
  m_Line.clear();
}

PrintableStream::Lines::int_type PrintableStream::Lines::overflow(int_type byte) {
  const char c = traits_type::to_char_type(byte);
  if (!traits_type::eq_int_type(byte, traits_type::eof())) xsputn(&c, 1);
  return traits_type::not_eof(byte);
}

std::streamsize PrintableStream::Lines::xsputn(const char* text, std::streamsize size) {
  const std::string_view bytes(text, static_cast<std::size_t>(size));
  const std::size_t end = bytes.rfind('\n') + 1;  // 0 when there is none
  m_Line += bytes.substr(0, end);
  if (end > 0) HandOver();
  m_Line += bytes.substr(end);
  return size;
}

}  // namespace skydata
