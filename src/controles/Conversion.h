// The one place where a text of the files (Windows-1252) meets a text of the screen.
#pragma once

#include <string>
#include <string_view>

#include <QString>

#include "data/Texte1252.h"

namespace gastrelle {

/// Every byte has its character, and comes back as the same byte.
inline QString VersQt(std::string_view texte) {
  QString resultat(static_cast<qsizetype>(texte.size()), Qt::Uninitialized);
  QChar* place = resultat.data();
  for (const char c : texte) {
    *place++ = QChar(unicodeDe1252[static_cast<unsigned char>(c)]);
  }
  return resultat;
}

/// A text of the program with its line breaks as the screen wants them.
inline QString VersEcran(std::string_view texte) {
  return VersQt(texte).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

/// A character that the code page doesn't hold becomes "?".
inline std::string DepuisQt(const QString& texte) {
  std::string resultat;
  resultat.reserve(static_cast<std::size_t>(texte.size()));
  for (const QChar c : texte) {
    if (c.isLowSurrogate()) {
      continue;  // the second half of a character that became one "?"
    }
    const int octet = OctetDe(c.unicode());
    resultat += octet < 0 ? '?' : static_cast<char>(octet);
  }
  return resultat;
}

}  // namespace gastrelle
