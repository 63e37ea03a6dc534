#include "recettes/frmRecettes.h"

#include <array>

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

constexpr DescriptionFenetre fenetre{.nom = "frmRecettes",
                                     .titre = u"Les recettes",
                                     .vue = EntreeVue::recettes,
                                     .logo = "logo-recettes"};
constexpr JeuOnglets jeu{.onglets = onglets, .refus = refus};

}  // namespace

frmRecettes::frmRecettes(Module1& module, Cadre& cadre)
    : FenetreOnglets(module, cadre, fenetre, jeu) {
  liste().Charge();
}

frmRecettesListe& frmRecettes::liste() {
  return static_cast<frmRecettesListe&>(Page(ongletListe));
}

void frmRecettes::MontreEnregistrement(std::int32_t numero) {
  liste().ChoisitRecette(numero);
  ChoisitOnglet(ongletListe);
}

std::string frmRecettes::Annonce() {
  const int nombre = module().bufRecette.nbActifs();
  return std::to_string(nombre) + std::string(CRLF) + (nombre == 1 ? "recette" : "recettes");
}

}  // namespace gastrelle
