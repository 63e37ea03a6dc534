#include "fromages/frmFromagesTrier.h"

#include "controles/Dessin.h"
#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "fromages/CatalogueFromages.h"
#include "fromages/frmFromagesListe.h"

namespace gastrelle {
namespace {

constexpr int coteSouris = 288;
constexpr int coteAnimal = 192;

}  // namespace

frmFromagesTrier::frmFromagesTrier(const PlaceOnglet& place, frmFromagesListe& liste)
    : PageOnglet(place),
      liste_(liste),
      ComboLaitTrier_(new ComboListe(QStringLiteral("ComboLaitTrier"), Ordre::insertion, this)),
      List1_(new ListeChoix(QStringLiteral("List1"), Ordre::alphabetique, this)),
      PictureSouris_(
          new Dessin(QStringLiteral("PictureSouris"), QStringLiteral("souris"), coteSouris, this)),
      PictureAnimal_{new Dessin(QStringLiteral("PictureAnimal(0)"), QStringLiteral("animal-vache"),
                                coteAnimal, this),
                     new Dessin(QStringLiteral("PictureAnimal(1)"), QStringLiteral("animal-chevre"),
                                coteAnimal, this),
                     new Dessin(QStringLiteral("PictureAnimal(2)"), QStringLiteral("animal-brebis"),
                                coteAnimal, this)},
      cmdActiver_(boutons().Affiche("cmdActiver", u"Afficher le fromage sélectionné",
                                    [this] { AfficheSelection(); })) {
  Dispose();
  ComboLaitTrier_->Ajoute(ListeCodes(laitNoms));
  MontreListe(0);
  ComboLaitTrier_->surChoix = [this] { ChoisitLait(); };
  List1_->surDoubleClic = [this] { AfficheSelection(); };
}

void frmFromagesTrier::Dispose() {
  List1_->setToolTip(QStringLiteral("Double-clic pour afficher la sélection"));
  List1_->setAccessibleName(QStringLiteral("Les fromages de ce lait"));
  PictureSouris_->setAccessibleName(QStringLiteral("Une souris qui attend son fromage"));
  auto* choix = new QHBoxLayout;
  choix->addWidget(Legende(QStringLiteral("Au &lait de "), ComboLaitTrier_));
  choix->addWidget(ComboLaitTrier_);
  choix->addStretch(1);
  // Either the list with its animal, or the mouse alone.
  PictureSouris_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  auto* page = new QHBoxLayout;
  page->addWidget(List1_, 2);
  page->addWidget(PictureSouris_, 1);
  for (QLabel* animal : PictureAnimal_) {
    page->addWidget(animal, 1);
  }
  contenu().addLayout(choix, 0, 0);
  contenu().addLayout(page, 1, 0);
  contenu().setRowStretch(1, 1);
  boutons().Aide("cmdAide");
}

void frmFromagesTrier::Entre() {
  ComboLaitTrier_->Choisit(0);
}

void frmFromagesTrier::MontreListe(int lait) {
  const bool montree = lait != 0;
  PictureSouris_->setVisible(!montree);
  List1_->setVisible(montree);
  cmdActiver_->setVisible(montree);
  for (int i = 0; i < static_cast<int>(PictureAnimal_.size()); ++i) {
    PictureAnimal_[static_cast<std::size_t>(i)]->setVisible(i == lait - 1);
  }
}

void frmFromagesTrier::ChoisitLait() {
  List1_->Vide();
  MontreListe(0);
  const int lait = ComboLaitTrier_->currentIndex();
  if (lait == 0) {
    DonneFocus(ComboLaitTrier_);
    return;
  }
  Opere(module(), [&] { List1_->Ajoute(FromagesAuLait(module(), Tenu<std::int16_t>(lait))); });
  if (List1_->entrees().empty()) {
    module().services.messages.Informe("Aucun fromage mémorisé"_1252, Icone::aucune);
    DonneFocus(ComboLaitTrier_);
    return;
  }
  MontreListe(lait);
  List1_->Choisit(0);
}

void frmFromagesTrier::AfficheSelection() {
  if (List1_->indice() >= 0 && liste_.ComboFromages->modele().IndiceDe(List1_->NumeroChoisi())) {
    hote().MontreEnregistrement(List1_->NumeroChoisi());
  }
}

Vue frmFromagesTrier::VueCourante() const {
  VueFromagesTries vue;
  if (ComboLaitTrier_->currentIndex() > 0) {
    vue.lait = ComboLaitTrier_->Texte();
  }
  for (const EntreeListe& fromage : List1_->entrees()) {
    vue.fromages.push_back(fromage.texte);
  }
  return vue;
}

}  // namespace gastrelle
