#include "controles/PageTri.h"

#include <QVBoxLayout>

#include "controles/Focus.h"
#include "controles/Legende.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {
namespace {

constexpr int indiceSansGroupe = 0;  // the "?"

/// The caption of a list, which gets its tooltip.
QLabel* LegendeDe(const DescriptionListe& description, QWidget* liste) {
  QLabel* legende = Legende(QString::fromUtf16(description.legende), liste);
  legende->setObjectName(QLatin1String(description.nomLegende));
  liste->setToolTip(QString::fromUtf16(description.infobulle));
  return legende;
}

}  // namespace

PageTri::PageTri(const PlaceOnglet& place, ListePartagee& lesGroupes,
                 const DescriptionTri& description)
    : PageOnglet(place),
      groupes(new ComboListe(QLatin1String(description.groupes.nom), Ordre::alphabetique, this)),
      entrees(new ListeChoix(QLatin1String(description.entrees.nom), Ordre::alphabetique, this)),
      colonneEntrees(new QWidget(this)),
      description_(description),
      cmdActiver_(
          boutons().Affiche("cmdActiver", description.infobulleAffiche, [this] { Affiche(); })) {
  auto* choix = new QHBoxLayout;
  choix->addWidget(LegendeDe(description.groupes, groupes));
  choix->addWidget(groupes, 1);
  auto* colonne = new QVBoxLayout(colonneEntrees);
  colonne->setContentsMargins({});
  colonne->addWidget(LegendeDe(description.entrees, entrees));
  colonne->addWidget(entrees, 1);
  contenu().addLayout(choix, 0, 0);
  contenu().setRowStretch(1, 1);
  lesGroupes.Suit(*groupes, "?");
  groupes->surChoix = [this] { ChoisitGroupe(); };
  entrees->surDoubleClic = [this] { cmdActiver_->click(); };
}

void PageTri::Entre() {
  groupes->Choisit(indiceSansGroupe);
  DonneFocus(groupes);  // the list may have had it, and is gone
}

void PageTri::MontreEntrees(bool montrees, bool utilisables) {
  colonneEntrees->setVisible(montrees);
  cmdActiver_->setVisible(montrees);
  cmdActiver_->setEnabled(utilisables);
}

void PageTri::ChoisitGroupe() {
  MontreEntrees(false, false);
  entrees->Vide();
  if (groupes->currentIndex() == indiceSansGroupe) {
    return;
  }
  Opere(module(), [this] { entrees->Ajoute(EntreesDe(groupes->NumeroChoisi())); });
  const bool utilisables = !entrees->entrees().empty();
  if (!utilisables) {
    entrees->Ajoute(Liste{{std::string(description_.aucune), 0}});
  }
  MontreEntrees(true, utilisables);
  entrees->Choisit(0);
  DonneFocus(entrees);
}

std::optional<std::string> PageTri::GroupeChoisi() const {
  if (groupes->currentIndex() <= indiceSansGroupe) {
    return std::nullopt;
  }
  return groupes->Texte();
}

std::vector<std::string> PageTri::Noms() const {
  std::vector<std::string> noms;
  for (const EntreeListe& entree : entrees->entrees()) {
    noms.push_back(entree.texte);
  }
  return noms;
}

}  // namespace gastrelle
