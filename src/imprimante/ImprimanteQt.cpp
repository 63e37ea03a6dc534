#include "imprimante/ImprimanteQt.h"

#include <array>
#include <memory>

#include <QPageLayout>

#include "controles/Conversion.h"
#include "data/Messages.h"
#include "imprimante/EntreeModule.h"
#include "imprimante/ServeurImpression.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

constexpr int twipsParPouce = 1440;
/// How many words' widths are kept: a long report says the same ones over and over.
constexpr std::size_t motsRetenus = 4096;

/// A font, the one with the same widths that is there where it isn't, and what to look for where
/// neither is.
struct Remplacante {
  std::string_view nom;
  const char* remplacante;
  QFont::StyleHint genre;
};

constexpr std::array<Remplacante, 2> remplacantes{{
    {"Times New Roman", "Liberation Serif", QFont::Serif},
    {"Courier New", "Liberation Mono", QFont::Monospace},
}};

QFont PoliceDe(const Police& police) {
  QFont rendue(VersQt(police.nom));
  for (const Remplacante& ligne : remplacantes) {
    if (ligne.nom == police.nom) {
      rendue.setFamilies({VersQt(police.nom), QLatin1String(ligne.remplacante)});
      rendue.setStyleHint(ligne.genre);
    }
  }
  rendue.setPointSizeF(police.corps);
  return rendue;
}

/// A text as it is drawn: a control character has no mark of its own.
QString Tracable(std::string_view texte) {
  QString tracable = VersQt(texte);
  for (QChar& c : tracable) {
    if (c.category() == QChar::Other_Control) {
      c = QChar::Space;
    }
  }
  return tracable;
}

void Exige(bool reussi) {
  if (!reussi) {
    throw ErreurExecution(Panne::entreeSortie);
  }
}

}  // namespace

ImprimanteQt::ImprimanteQt(const QPrinterInfo& laquelle)
    : imprimante_(laquelle, QPrinter::HighResolution), mesures_(police_, &imprimante_) {
  imprimante_.setResolution(twipsParPouce);
  imprimante_.setDocName(VersQt(titreApplication));
  imprimante_.setCreator(VersQt(titreApplication));
  // The toolkit would take its own idea of a page for the queue's. The printable part is all that
  // the printer can reach.
  imprimante_.setPageSize(laquelle.defaultPageSize());
  QPageLayout page = imprimante_.pageLayout();
  page.setMargins(page.minimumMargins());
  imprimante_.setPageLayout(page);
  largeur_ = imprimante_.width();
  hauteur_ = imprimante_.height();
}

void ImprimanteQt::PosePolice(const Police& police) {
  const QFont demandee = PoliceDe(police);
  if (demandee == police_) {
    return;
  }
  police_ = demandee;
  mesures_ = QFontMetricsF(police_, &imprimante_);
  largeurs_.clear();
  if (pinceau_.isActive()) {
    pinceau_.setFont(police_);
  }
}

double ImprimanteQt::Largeur() {
  return largeur_;
}

double ImprimanteQt::Hauteur() {
  return hauteur_;
}

double ImprimanteQt::LargeurTexte(std::string_view texte) {
  if (const auto connue = largeurs_.find(texte); connue != largeurs_.end()) {
    return connue->second;
  }
  if (largeurs_.size() == motsRetenus) {
    largeurs_.clear();
  }
  const double largeur = mesures_.horizontalAdvance(Tracable(texte));
  largeurs_.emplace(texte, largeur);
  return largeur;
}

double ImprimanteQt::HauteurLigne() {
  return mesures_.lineSpacing();
}

void ImprimanteQt::OuvrePage() {
  Exige(pinceau_.isActive() ? imprimante_.newPage() : pinceau_.begin(&imprimante_));
  pinceau_.setFont(police_);
}

void ImprimanteQt::Trace(std::string_view texte, double x, double y) {
  pinceau_.drawText(QPointF(x, y + mesures_.ascent()), Tracable(texte));
}

void ImprimanteQt::Envoie() {
  Exige(pinceau_.end());
}

}  // namespace gastrelle

extern "C" Q_DECL_EXPORT gastrelle::Imprimante* NouvelleImprimante1() {
  if (!gastrelle::ServeurRepond()) {
    return nullptr;
  }
  // Without any printer the toolkit would print into a file without a name.
  const QPrinterInfo laquelle = QPrinterInfo::defaultPrinter();
  gastrelle::RefuseMotDePasse();
  return laquelle.isNull() ? nullptr
                           : std::make_unique<gastrelle::ImprimanteQt>(laquelle).release();
}
