// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Which article of the encyclopaedia belongs to an object. File format: docs/formats/object_articles.md.
#pragma once

#include <memory>

#include "common_interfaces/api.h"

namespace CommonInterfaces {

struct ArticleTable;

// The table is loaded once, by the constructor; afterwards every thread may ask.
class COMMON_INTERFACES_API ArticlesInformation {
 public:
  // Failures leave the table empty and print one line with `path` as given:
  //   "File %s not found\n"              it cannot be resolved or opened (null is such a path, too)
  //   "Bad file size of file %s \n"      its length is no multiple of 12
  explicit ArticlesInformation(const char* path = "media:find:object_articles_table.bin");
  ~ArticlesInformation();
  ArticlesInformation(const ArticlesInformation&) = delete;
  ArticlesInformation& operator=(const ArticlesInformation&) = delete;

  // The identifier of the article, which is the article store's business; -1 when there is none, and for
  // every "mesh". Articles of a galaxy are deliberately filed under another number, 0x3C000000 and the low 24
  // bits of its own: for ("gala", 0x12345678) number 0x3C345678 is looked up. Of two records for one object
  // the first one in the file counts. One look-up in a hash table.
  int GetArticleId(int kind, int number) const;

 private:
  std::unique_ptr<const ArticleTable> m_Table;  // never null
};

}  // namespace CommonInterfaces
