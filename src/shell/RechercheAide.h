// The search over all pages of the help: every word, whatever its case and its accents.
#pragma once

#include <vector>

#include <QRegularExpression>
#include <QString>

#include "shell/FichierAide.h"

namespace gastrelle {

class RechercheAide {
 public:
  explicit RechercheAide(const FichierAide& fichier);

  /// The pages that hold every word, those with a word in their title first. None for a text of
  /// blanks.
  [[nodiscard]] std::vector<PageAide> Cherche(const QString& texte) const;

  /// What finds each word of a text: "creme" also finds "Crème", "oeuf" finds "œuf".
  [[nodiscard]] static std::vector<QRegularExpression> Expressions(const QString& texte);

 private:
  struct PageLue {
    PageAide page;
    QString texte;
  };

  std::vector<PageLue> pages_;
};

}  // namespace gastrelle
