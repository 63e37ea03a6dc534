// What stands on the pages of a printed document, as another program reads them.
#pragma once

#include <vector>

#include <QString>
#include <QStringList>

namespace gastrelle::essai {

/// A line, its words joined by one blank; places in points from the top left corner of the sheet.
struct LigneLue {
  int page;  ///< counted from 0
  double gauche;
  double haut;
  double droite;
  double bas;
  QString texte;
};

struct DocumentLu {
  int pages = 0;
  double largeur = 0;  ///< of the sheet, in points
  double hauteur = 0;
  std::vector<LigneLue> lignes;
  /// Names of the fonts, without the mark of a part of a font; one that doesn't come along with the
  /// document has "absente" behind it.
  QStringList polices;
};

[[nodiscard]] DocumentLu LitDocument(const QString& pdf);

}  // namespace gastrelle::essai
