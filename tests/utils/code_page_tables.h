// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The upper halves of the code pages as glibc 2.36 (iconv, 2022) converts them, byte by byte: an origin other
// than that of the table under test. U+FFFD stands for a byte without a character.
#pragma once

namespace utils_test {

constexpr char16_t kCyrillicUpperHalf[] =
    u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏ"
    u"ђ‘’“”•–—\uFFFD™љ›њќћџ"
    u"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї"
    u"°±Ііґµ¶·ё№є»јЅѕї"
    u"АБВГДЕЖЗИЙКЛМНОП"
    u"РСТУФХЦЧШЩЪЫЬЭЮЯ"
    u"абвгдежзийклмноп"
    u"рстуфхцчшщъыьэюя";
constexpr char16_t kWesternUpperHalf[] =
    u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFDŽ\uFFFD"
    u"\uFFFD‘’“”•–—˜™š›œ\uFFFDžŸ"
    u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯"
    u"°±²³´µ¶·¸¹º»¼½¾¿"
    u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏ"
    u"ÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
    u"àáâãäåæçèéêëìíîï"
    u"ðñòóôõö÷øùúûüýþÿ";
constexpr char16_t kGreekUpperHalf[] =
    u"€\uFFFD‚ƒ„…†‡\uFFFD‰\uFFFD‹\uFFFD\uFFFD\uFFFD\uFFFD"
    u"\uFFFD‘’“”•–—\uFFFD™\uFFFD›\uFFFD\uFFFD\uFFFD\uFFFD"
    u"\u00A0΅Ά£¤¥¦§¨©\uFFFD«¬\u00AD®―"
    u"°±²³΄µ¶·ΈΉΊ»Ό½ΎΏ"
    u"ΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟ"
    u"ΠΡ\uFFFDΣΤΥΦΧΨΩΪΫάέήί"
    u"ΰαβγδεζηθικλμνξο"
    u"πρςστυφχψωϊϋόύώ\uFFFD";

}  // namespace utils_test
