#include "fromages/frmFromagesPage.h"

#include "controles/Etiquette.h"
#include "controles/Focus.h"

namespace gastrelle {
namespace {

constexpr int lettresCode = 24;  ///< width of a milk or a month, with the arrow of its list
constexpr int lettresCodeAuMoins = 15;

}  // namespace

void frmFromagesPage::Dispose(const ChampsFromage& champs) {
  AjouteACote(QStringLiteral("Le fro&mage"), champs.nom);
  AjouteACote(QStringLiteral("Sa &région d'origine"), champs.region);
  RangCourt(Legende(QStringLiteral("Au &lait de "), champs.lait), {champs.lait});
  RangCourt(new Etiquette(QStringLiteral("Meilleure période de dégustation "), this),
            {Legende(QStringLiteral("&de"), champs.premierMois), champs.premierMois,
             Legende(QStringLiteral("à"), champs.dernierMois), champs.dernierMois});
  champs.premierMois->setAccessibleName(QStringLiteral("Premier mois de dégustation"));
  champs.dernierMois->setAccessibleName(QStringLiteral("Dernier mois de dégustation"));
  for (QWidget* code : {champs.lait, champs.premierMois, champs.dernierMois}) {
    const int lettre = code->fontMetrics().averageCharWidth();
    code->setMinimumWidth(lettresCodeAuMoins * lettre);
    code->setMaximumWidth(lettresCode * lettre);
  }
  contenu().setRowStretch(AjouteACote(QStringLiteral("No&tes"), champs.notes), 1);
  OrdonneClavier({champs.nom, champs.region, champs.lait, champs.premierMois, champs.dernierMois,
                  champs.notes});
}

void frmFromagesPage::RangCourt(QLabel* legende, std::initializer_list<QWidget*> controles) {
  auto* suite = new QHBoxLayout;
  // A box grows up to its greatest width, then what follows the row does.
  constexpr int avantLaSuite = 1000;
  for (QWidget* controle : controles) {
    suite->addWidget(controle, qobject_cast<QLabel*>(controle) == nullptr ? avantLaSuite : 0);
  }
  suite->addStretch(1);
  const int rang = contenu().rowCount();
  contenu().addWidget(legende, rang, 0);
  contenu().addLayout(suite, rang, 1);
}

}  // namespace gastrelle
