// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <streambuf>
#include <string>

namespace skydata {

// Hands what is written to it to `target` line by line, as MakePrintable (utils/messages.h) shows it: what a
// file holds may be quoted as it is. A last line without an end goes when this object goes. Lack of memory
// throws std::bad_alloc out of every output operation; whether the target took all of it, the target knows.
class PrintableStream : public std::ostream {
 public:
  explicit PrintableStream(std::ostream& target);
  ~PrintableStream() override;

 private:
  class Lines : public std::streambuf {
   public:
    explicit Lines(std::ostream& target) : m_Target(target) {}
    void HandOver();

   protected:
    int_type overflow(int_type byte) override;
    std::streamsize xsputn(const char* text, std::streamsize size) override;

   private:
    std::ostream& m_Target;
    std::string m_Line;
  };
  Lines m_Lines;
};

}  // namespace skydata
