#include "vins/frmMillesimeSaisie.h"

#include <QHBoxLayout>

#include "controles/Etiquette.h"

namespace gastrelle {
namespace {

constexpr int lettresAuPlus = 132;  ///< width of a row: the eye has to follow it

}  // namespace

frmMillesimeSaisie::frmMillesimeSaisie(const PlaceOnglet& place, const char* etiquette,
                                       const NomsClassement& noms)
    : PageOnglet(place),
      millesime_(new Etiquette({}, this)),
      classement_(new PanneauClassement(noms, this)) {
  millesime_->setObjectName(QLatin1String(etiquette));
  QFont police = millesime_->font();
  police.setBold(true);
  millesime_->setFont(police);
  contenu().addWidget(millesime_, 0, 0);
  classement_->setMaximumWidth(lettresAuPlus * fontMetrics().averageCharWidth());
  constexpr int avantLaSuite = 1000;  // the choice grows up to its greatest width first
  auto* suite = new QHBoxLayout;
  suite->addWidget(classement_, avantLaSuite);
  suite->addStretch(1);
  contenu().addLayout(suite, 1, 0);
  contenu().setRowStretch(2, 1);
}

void frmMillesimeSaisie::MontreAnnee(int annee) {
  millesime_->setText(QStringLiteral("Millésime : %1").arg(annee));
  classement_->NommeAnnee(annee);
}

}  // namespace gastrelle
