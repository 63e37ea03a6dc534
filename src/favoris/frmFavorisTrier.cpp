#include "favoris/frmFavorisTrier.h"

#include "controles/Dessin.h"
#include "data/ProceduresFichiers.h"
#include "favoris/CatalogueFavoris.h"
#include "favoris/frmFavorisListe.h"

namespace gastrelle {
namespace {

constexpr int coteCarnet = 288;

constexpr DescriptionTri description{
    .groupes = {.nom = "ComboCategorieTrier",
                .legende = u"Les ca&tégories",
                .infobulle = u"Choisir une catégorie dans la liste"},
    .entrees = {.nom = "lstTriFavoris",
                .legende = u"Les favo&ris",
                .infobulle = u"Double clic pour afficher le favori sélectionné"},
    .infobulleAffiche = u"Afficher le favori sélectionné",
    .aucune = "Aucun favori mémorisé"_1252};

}  // namespace

frmFavorisTrier::frmFavorisTrier(const PlaceOnglet& place, frmFavorisListe& liste)
    : PageTri(place, liste.categories, description),
      liste_(liste),
      ImageCentre_(
          new Dessin(QStringLiteral("ImageCentre"), QStringLiteral("carnet"), coteCarnet, this)) {
  ImageCentre_->setAccessibleName(QStringLiteral("Un carnet d'adresses"));
  contenu().addWidget(colonneEntrees, 1, 0);
  contenu().addWidget(ImageCentre_, 1, 0);
  boutons().Aide("cmdAideTrier");
}

Liste frmFavorisTrier::EntreesDe(std::int32_t categorie) {
  return FavorisDeLaCategorie(module(), categorie);
}

void frmFavorisTrier::MontreEntrees(bool montrees, bool utilisables) {
  PageTri::MontreEntrees(montrees, utilisables);
  ImageCentre_->setVisible(!montrees);
}

void frmFavorisTrier::Affiche() {
  int indice = 0;
  module().services.pointeur.FlecheSablier();
  Garde(module(), [&] { indice = liste_.ComboFavoris->IndiceDe(entrees->NumeroChoisi()); });
  liste_.ComboFavoris->Choisit(indice);
  hote().ChoisitOnglet(ongletListe);
}

Vue frmFavorisTrier::VueCourante() const {
  return VueFavorisTries{GroupeChoisi(), Noms()};
}

}  // namespace gastrelle
