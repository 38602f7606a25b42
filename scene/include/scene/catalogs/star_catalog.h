// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "scene/api.h"
#include "scene/catalogs/catalog_table.h"
#include "scene/catalogs/label_rules.h"
#include "scene/catalogs/object_traits.h"
#include "scene/view/directions.h"

namespace scene {

// What printed atlases mark at a star. Prepared catalogs keep the bits: frozen.
enum StarMark : unsigned char {
  kDoubleStar = 1,  // worth showing; GetPairAngle
  kVariableStar = 2,
  kHasPlanets = 4
};

// The luminosity class in a spectral type, MK or the older letters before it: 1 supergiants ("Iab", c), 2
// "II", 3 giants ("III", g), 4 subgiants ("IV", sg), 5 dwarfs ("V", d), 6 subdwarfs ("VI", sd), 7 white
// dwarfs ("DA2", wd); of several the first. ObjectTraits::kNoClass where it has none.
SCENE_API unsigned char FindLuminosityClass(std::string_view spectrum);

// The stars as every frame needs them: one array a quantity, the same index everywhere, the brightest first,
// so that a frame stops at the first star that is too faint. Directions are at the epoch J2000 on J2000 axes.
class SCENE_API StarCatalog {
 public:
  // Takes all records that have RA, Dec and VisMagnitude; when others were left out, one diagnostic line with
  // their number. Proper motions that are missing count as zero.
  void Fill(CatalogTable& table);

  int GetCount() const { return static_cast<int>(m_Codes.size()); }
  float GetCode(int star) const { return m_Codes[star]; }  // magnitude code, (magnitude + 2) * 10
  const Direction& GetDirection(int star) const { return m_Directions[star]; }
  // The change of the direction per Julian year.
  const Direction& GetMotion(int star) const { return m_Motions[star]; }
  // The largest proper motion of all, radians per Julian year.
  double GetMaxMotion() const { return m_MaxMotion; }
  unsigned char GetSpectrum(int star) const { return m_Spectra[star]; }  // GetSpectrType
  int GetNumber(int star) const { return m_Numbers[star]; }              // catalogue number, -1: none
  // Proper name, else Bayer letter, else Flamsteed number; "" when it has none of these. The catalog's.
  const char* GetLabel(int star) const { return GetLabel(star, {true, true, false, false, false}); }
  // What the rules say stands beside it, without the magnitude.
  const char* GetLabel(int star, const LabelRules& rules) const {
    if (m_ProperNames[star] != 0 && (rules.commonName || m_Letters[star] == 0))
      return GetText(m_ProperNames[star]);
    return GetText(rules.abbreviation ? m_Designations[star] : m_Letters[star]);
  }
  unsigned GetMarks(int star) const { return m_Marks[star]; }  // of StarMark
  // Where the fainter star of a double stands, radians from north over east; not a number for other stars.
  float GetPairAngle(int star) const { return m_PairAngles[star]; }
  void SetProperName(int star, std::string_view name) { m_ProperNames[star] = AddText(name); }
  bool HasProperName(int star) const { return m_ProperNames[star] != 0; }
  int GetRecord(int star) const { return m_Records[star]; }  // of the table that it came from
  ObjectTraits GetTraits(int star) const {
    return {m_Codes[star],       m_Colours[star],  std::numeric_limits<float>::quiet_NaN(),
            m_Spectra[star],     m_Catalogs[star], m_Numbers[star],
            m_Luminosities[star]};
  }

 private:
  friend struct PreparedParts;
  void Append(CatalogTable& table, int record);
  unsigned AddText(std::string_view text);
  const char* GetText(unsigned offset) const { return m_Texts.c_str() + offset; }

  std::vector<float> m_Codes;
  std::vector<Direction> m_Directions;
  std::vector<Direction> m_Motions;
  std::vector<unsigned char> m_Spectra;
  std::vector<int> m_Numbers;
  std::vector<float> m_Colours;               // colour index B-V, magnitudes; not a number when unknown
  std::vector<unsigned char> m_Catalogs;      // StarCatalogBit
  std::vector<unsigned char> m_Luminosities;  // FindLuminosityClass
  std::vector<unsigned char> m_Marks;         // StarMark
  std::vector<float> m_PairAngles;
  std::vector<int> m_Records;
  // Offsets in m_Texts, 0 where there is none: "Sirius", "α", "α CMa".
  std::vector<unsigned> m_ProperNames, m_Letters, m_Designations;
  std::string m_Texts = std::string(1, '\0');
  double m_MaxMotion = 0.0;
};

}  // namespace scene
