#include "fromages/frmFromages.h"

#include <array>

#include "data/ProceduresFichiers.h"
#include "fromages/CatalogueFromages.h"
#include "fromages/frmFromagesAjouter.h"
#include "fromages/frmFromagesListe.h"
#include "fromages/frmFromagesModifier.h"
#include "fromages/frmFromagesSupprimer.h"
#include "fromages/frmFromagesTrier.h"

namespace gastrelle {
namespace {

constexpr std::array<DescriptionOnglet, 5> onglets{{
    {u"Liste", u"Les fromages mémorisées", u"Liste des fromages mémorisés", u"Bon appétit !",
     "fromages-liste"},
    {u"Ajouter", u"Ajouter un fromage", u"Ajout d'un fromage",
     u"Vous ajoutez un fromage à la base de données", "fromages-ajouter"},
    {u"Modifier", u"Modifier le fromage", u"Modification d'un fromage",
     u"Vous modifiez le fromage affiché", "fromages-modifier"},
    {u"Supprimer", u"Supprimer le fromage", u"Suppression d'un fromage",
     u"Vous supprimez le fromage affiché", "fromages-supprimer"},
    {u"Trier", u"Trier par lait", u"Tri des fromages", u"Vous triez les fromages par type de lait",
     "fromages-trier"},
}};

// From the sorting only the list and the addition can be reached: change and deletion start from a
// cheese on display.
constexpr std::array<ChangementRefuse, 2> refus{{{5, 3}, {5, 4}}};

constexpr std::int16_t contexteBase = 20;
constexpr bool razReduite = true;

constexpr DescriptionFenetre description{"frmFromages", u"Les fromages", EntreeVue::fromages,
                                         contexteBase,  "logo-fromages", onglets,
                                         refus,         razReduite};

}  // namespace

frmFromages::frmFromages(Module1& module, Cadre& cadre)
    : FenetreOnglets(module, cadre, description),
      liste_(new frmFromagesListe(*this)),
      ajouter_(new frmFromagesAjouter(*this)),
      modifier_(new frmFromagesModifier(*this)),
      supprimer_(new frmFromagesSupprimer(*this)),
      trier_(new frmFromagesTrier(*this)) {
  Garde(module, [&] {
    ExigeFichier(module, Donnees::GLF1);
    RechargeFromages();
  });
  liste_->ComboFromages->Choisit(0);
}

void frmFromages::RechargeFromages() {
  liste_->ComboFromages->Vide();
  liste_->ComboFromages->Ajoute(ListeFromages(module()));
}

void frmFromages::MontreFromage(std::int32_t numero) {
  const int indice = liste_->ComboFromages->IndiceDe(numero);
  ChoisitOnglet(ongletListe);
  liste_->ComboFromages->Choisit(indice);
}

Vue frmFromages::VueCourante() const {
  constexpr int ongletTrier = 5;
  switch (ongletCourant()) {
    case ongletListe:
      return liste_->VueCourante();
    case ongletTrier:
      return trier_->VueCourante();
    default:
      return {};
  }
}

std::string frmFromages::Annonce() {
  return std::to_string(module().bufFromage.nbActifs()) + std::string(CRLF) + "fromages";
}

}  // namespace gastrelle
