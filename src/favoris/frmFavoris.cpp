#include "favoris/frmFavoris.h"

#include <array>

#include "favoris/frmFavorisAjouter.h"
#include "favoris/frmFavorisListe.h"
#include "favoris/frmFavorisModifier.h"
#include "favoris/frmFavorisSupprimer.h"
#include "favoris/frmFavorisTrier.h"

namespace gastrelle {
namespace {

constexpr std::array<DescriptionOnglet, 5> onglets{{
    {u"Liste", u"Les favoris mémorisés", u"Liste de mes favoris", u"Tous les favoris",
     "favoris-liste", CreePage<frmFavoris, frmFavorisListe>},
    {u"Ajouter", u"Ajouter un favori", u"Ajout d'une catégorie ou d'un  favori",
     u"Vous ajoutez un favori à la base de données", "favoris-ajouter",
     CreePage<frmFavoris, frmFavorisAjouter>},
    {u"Modifier", u"Modifier une catégorie ou le favori",
     u"Modification d'une catégorie ou d'un favori", u"Vous modifiez le favori affiché",
     "favoris-modifier", CreePage<frmFavoris, frmFavorisModifier>},
    {u"Supprimer", u"Supprimer le favori", u"Suppression d'une catégorie ou d'un favori",
     u"Vous supprimez le favori affiché", "favoris-supprimer",
     CreePage<frmFavoris, frmFavorisSupprimer>},
    {u"Trier", u"Trier par catégorie", u"Tri des favoris", u"Vous triez les favoris par genre",
     "favoris-trier", CreePage<frmFavoris, frmFavorisTrier>},
}};

// From the sorting only the list and the addition can be reached: change and deletion start from
// the favourite on display, which isn't the one selected there.
constexpr std::array<ChangementRefuse, 2> refus{{{5, 3}, {5, 4}}};

constexpr DescriptionFenetre fenetre{.nom = "frmFavoris",
                                     .titre = u"Mes favoris",
                                     .vue = EntreeVue::favoris,
                                     .logo = "logo-favoris"};
constexpr JeuOnglets jeu{.onglets = onglets, .refus = refus};

}  // namespace

frmFavoris::frmFavoris(Module1& module, Cadre& cadre)
    : FenetreOnglets(module, cadre, fenetre, jeu) {
  liste().Charge();
}

frmFavorisListe& frmFavoris::liste() {
  return static_cast<frmFavorisListe&>(Page(ongletListe));
}

std::string frmFavoris::Annonce() {
  return std::to_string(module().bufFavori.nbActifs()) + std::string(CRLF) + "favoris";
}

}  // namespace gastrelle
