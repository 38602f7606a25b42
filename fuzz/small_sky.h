// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The small data root of the tests, for targets that need a whole sky around what they read. Made once, and
// the logical paths point at it.
#pragma once

#include <filesystem>
#include <string>

#include "fuzz/scratch.h"
#include "scene/catalogs/data_root.h"
#include "scene/small_root.h"

namespace fuzz {

class SmallSky {
 public:
  static const SmallSky& Get() {
    static const Scratch& scratch = Scratch::Get();  // checks what is printed
    static const SmallSky sky(scratch);
    return sky;
  }

  // "data" and "work", as long as the process.
  std::string Path(const std::string& name) const { return m_Root.dir.Path(name); }

  // A file of the data root that holds other bytes while this lives.
  class Replaced {
   public:
    Replaced(const SmallSky& sky, const std::string& name, const std::string& bytes)
        : m_Sky(sky),
          m_Name("data/" + name),
          m_WasThere(std::filesystem::exists(sky.Path(m_Name))),
          m_Before(m_WasThere ? sky.m_Root.dir.Read(m_Name) : "") {
      sky.m_Root.dir.Write(m_Name, bytes);
    }
    ~Replaced() {
      std::error_code ignored;
      if (m_WasThere)
        m_Sky.m_Root.dir.Write(m_Name, m_Before);
      else
        std::filesystem::remove(m_Sky.Path(m_Name), ignored);
    }
    Replaced(const Replaced&) = delete;
    Replaced& operator=(const Replaced&) = delete;

   private:
    const SmallSky& m_Sky;
    std::string m_Name;
    bool m_WasThere;
    std::string m_Before;
  };

 private:
  explicit SmallSky(const Scratch&) {
    std::filesystem::create_directories(Path("work"));
    std::string error;
    Require(scene::SetSkyRoots(Path("data"), Path("work"), error), "the small sky is a data root");
  }
  host_test::SmallRoot m_Root;
};

}  // namespace fuzz
