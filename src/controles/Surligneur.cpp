#include "controles/Surligneur.h"

#include <QTextLayout>

#include "controles/Teintes.h"
#include "controles/TraitsTexte.h"

namespace gastrelle {

Surligneur::Surligneur(QTextDocument& document) : QObject(&document), document_(document) {
  connect(&document, &QTextDocument::contentsChange, this,
          [this](int ou, int /*otes*/, int ajoutes) { Surligne(ou, ou + ajoutes); });
}

void Surligneur::Repeint(const QFont& police, const QPalette& palette) {
  constexpr double agrandissement = 1.25;
  const auto format = [this](Trait trait) -> QTextCharFormat& {
    return formats_.at(static_cast<std::size_t>(trait));
  };
  for (QTextCharFormat& gras : formats_) {
    gras.setFontWeight(QFont::Bold);
  }
  format(Trait::titre).setFontPointSize(police.pointSizeF() * agrandissement);
  format(Trait::titre).setForeground(Framboise(palette));
  format(Trait::marque).setForeground(Framboise(palette));
  Surligne(0, document_.characterCount());
}

void Surligneur::Surligne(int debut, int fin) {
  for (QTextBlock ligne = document_.findBlock(debut); ligne.isValid() && ligne.position() <= fin;
       ligne = ligne.next()) {
    SurligneLigne(ligne);
  }
}

void Surligneur::SurligneLigne(const QTextBlock& ligne) {
  QTextLayout& mise = *ligne.layout();
  if (!mise.preeditAreaText().isEmpty()) {
    return;  // an accent is being composed: it has a drawing of its own
  }
  QList<QTextLayout::FormatRange> voulus;
  if (const auto passage = TraitDeLigne(ligne.text())) {
    voulus.append({static_cast<int>(passage->debut), static_cast<int>(passage->longueur),
                   formats_.at(static_cast<std::size_t>(passage->trait))});
  }
  if (mise.formats() != voulus) {
    mise.setFormats(voulus);
    document_.markContentsDirty(ligne.position(), ligne.length());
  }
}

}  // namespace gastrelle
