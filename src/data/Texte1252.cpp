#include "data/Texte1252.h"

#include <algorithm>

namespace gastrelle {

std::string Majuscules(std::string_view texte) {
  std::string resultat(texte);
  std::transform(resultat.begin(), resultat.end(), resultat.begin(),
                 [](char c) { return capitale1252[static_cast<unsigned char>(c)]; });
  return resultat;
}

std::string VersUtf8(std::string_view texte) {
  std::string resultat;
  resultat.reserve(texte.size() + texte.size() / 8);
  for (const char c : texte) {
    const unsigned code = unicodeDe1252[static_cast<unsigned char>(c)];
    if (code < 0x80) {
      resultat += c;
    } else if (code < 0x800) {
      resultat += static_cast<char>(0xC0U | (code >> 6U));
      resultat += static_cast<char>(0x80U | (code & 0x3FU));
    } else {
      resultat += static_cast<char>(0xE0U | (code >> 12U));
      resultat += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
      resultat += static_cast<char>(0x80U | (code & 0x3FU));
    }
  }
  return resultat;
}

std::string DepuisUtf8(std::string_view utf8) {
  std::string resultat;
  resultat.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const detail::Point point = detail::LitPoint(utf8, i);
    const int octet = OctetDe(point.code);
    resultat += octet < 0 ? '?' : static_cast<char>(octet);
    i = point.suite;
  }
  return resultat;
}

bool TientEn1252(std::string_view utf8) {
  for (std::size_t i = 0; i < utf8.size();) {
    const detail::Point point = detail::LitPoint(utf8, i);
    if (OctetDe(point.code) < 0) {
      return false;
    }
    i = point.suite;
  }
  return true;
}

}  // namespace gastrelle
