#include "recettes/frmRecettes.h"

#include <array>

#include "controles/Conversion.h"
#include "data/ProceduresFichiers.h"
#include "recettes/ImageRecette.h"
#include "recettes/LectureRecettes.h"
#include "recettes/frmRecettesAjouter.h"
#include "recettes/frmRecettesAlpha.h"
#include "recettes/frmRecettesListe.h"
#include "recettes/frmRecettesModifier.h"
#include "recettes/frmRecettesSupprimer.h"

namespace gastrelle {
namespace {

constexpr std::array<DescriptionOnglet, 5> onglets{{
    {u"Liste", u"Les recettes mémorisées", u"Liste des recettes mémorisées", u"Bon appétit !",
     "recettes-liste", CreePage<frmRecettes, frmRecettesListe>},
    {u"Ajouter", u"Ajouter une famille de recettes ou une recette",
     u"Ajout d'une famille ou d'une recette", u"Vous ajoutez une recette à la base de données",
     "recettes-ajouter", CreePage<frmRecettes, frmRecettesAjouter>},
    {u"Modifier", u"Modifier le nom de la famille de recettes ou une recette",
     u"Modification d'une famille ou d'une recette",
     u"Vous modifiez le nom de la famille ou la recette affichés", "recettes-modifier",
     CreePage<frmRecettes, frmRecettesModifier>},
    {u"Supprimer", u"Supprimer la famille de recettes ou la recette",
     u"Suppression d'une famille ou d'une recette",
     u"Vous supprimez la famille ou la recette affichés", "recettes-supprimer",
     CreePage<frmRecettes, frmRecettesSupprimer>},
    {u"Alpha", u"Toutes les recettes classées par ordre alphabétique",
     u"Classement alphabétique de toutes les recettes",
     u"Vous triez les recettes par ordre alphabétique croissant", "recettes-alpha",
     CreePage<frmRecettes, frmRecettesAlpha>},
}};

// From the classification only the list and the addition can be reached: modification and deletion
// start from a recipe on display.
constexpr std::array<ChangementRefuse, 2> refus{{{5, 3}, {5, 4}}};

constexpr std::int16_t contexteBase = 10;

constexpr DescriptionFenetre description{"frmRecettes", u"Les recettes", EntreeVue::recettes,
                                         contexteBase,  "logo-recettes", onglets,
                                         refus};

}  // namespace

frmRecettes::frmRecettes(Module1& module, Cadre& cadre)
    : FenetreOnglets(module, cadre, description),
      liste_(static_cast<frmRecettesListe&>(Page(ongletListe))) {
  ExigeFichierOuFin(module, Donnees::GLR1);
  ChargeFamilles();
  liste_.ComboFamilles->Choisit(0);
}

void frmRecettes::SuitFamilles(ComboListe& combo) {
  if (!familles_.empty()) {
    combo.Ajoute(familles_.front()->entrees());
  }
  familles_.push_back(&combo);
}

void frmRecettes::ChargeFamilles() {
  Garde(module(), [&] {
    const Liste familles = ListeFamilles(module());
    for (ComboListe* combo : familles_) {
      combo->Ajoute(familles);
    }
  });
}

void frmRecettes::RechargeFamilles() {
  for (ComboListe* combo : familles_) {
    combo->Vide();
  }
  ChargeFamilles();
}

bool frmRecettes::AccepteImage(std::string_view chemin) {
  Services& services = module().services;
  switch (GenreDe(chemin)) {
    case GenreImage::refuse:
      services.pointeur.Normal();
      services.messages.Bip();
      services.messages.Informe("Ce fichier n'est pas un fichier image."_1252, Icone::information);
      return false;
    case GenreImage::autre:
      services.pointeur.Normal();
      services.messages.Informe(
          "Ce type de fichier ne sera pas affichable par le visualisateur interne d'images."_1252,
          Icone::information);
      services.pointeur.Sablier();
      return true;
    case GenreImage::affichable:
      break;
  }
  return true;
}

std::string frmRecettes::Annonce() {
  const int nombre = module().bufRecette.nbActifs();
  return std::to_string(nombre) + std::string(CRLF) + (nombre == 1 ? "recette" : "recettes");
}

}  // namespace gastrelle
