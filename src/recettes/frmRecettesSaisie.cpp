#include "recettes/frmRecettesSaisie.h"

#include "controles/ChoixImage.h"
#include "controles/FeuilleTexte.h"
#include "data/Limites.h"
#include "recettes/ImageRecette.h"
#include "recettes/frmRecettesListe.h"

namespace gastrelle {

frmRecettesSaisie::frmRecettesSaisie(const PlaceOnglet& place, frmRecettesListe& laListe,
                                     const DescriptionSaisieRecette& noms)
    : PageOnglet(place),
      liste(laListe),
      options(Options(noms.options, noms.optionFamille, noms.optionRecette)),
      famille(new LigneTexte(QLatin1String(noms.famille), limiteNom, this)),
      familles(new ComboListe(QLatin1String(noms.familles), Ordre::alphabetique, this)),
      titre(new LigneTexte(QLatin1String(noms.titre), limiteNom, this)),
      texte(new FeuilleTexte(QLatin1String(noms.texte), limiteTexte, this)),
      image(new LigneTexte(QLatin1String(noms.image), sansLimite, this)),
      cherche(Bouton(QLatin1String(noms.cherche), QStringLiteral("I&mage..."),
                     QStringLiteral("dossier"), QStringLiteral("Rechercher une image"), this)) {
  image->RendChemin();
  liste.familles.Suit(*familles);
  AjouteACote(QString::fromUtf16(noms.legendeFamille), famille);
  AjouteACote(QStringLiteral("La famille &de la recette"), familles);
  AjouteACote(QStringLiteral("Le &titre de la recette"), titre);
  contenu().setRowStretch(AjouteACote(QStringLiteral("Le te&xte de la recette"), texte), 1);
  const int rang = contenu().rowCount();
  contenu().addWidget(Legende(QStringLiteral("L'image a&ssociée"), image), rang, 0);
  contenu().addWidget(image, rang, 1);
  contenu().addWidget(cherche, rang, 2);
  connect(cherche, &QPushButton::clicked, this, [this] {
    if (const auto chemin = ChoisitImage(module(), this)) {
      image->PoseTexte(*chemin);
    }
  });
}

std::vector<QWidget*> frmRecettesSaisie::PourRecette() const {
  return {familles, titre, texte, image, cherche};
}

void frmRecettesSaisie::ReprendIndiceFamille() {
  familles->Montre(liste.ComboFamilles->currentIndex());
}

RecetteSaisie frmRecettesSaisie::Saisie() const {
  return {familles->NumeroChoisi(), titre->Texte(), texte->Texte(),
          module().chemins.FormeCourte(image->Texte())};
}

void frmRecettesSaisie::RefuseImage() {
  hote().RefuseAvecBip("Ce fichier n'est pas un fichier image."_1252, nullptr);
}

bool frmRecettesSaisie::AccepteImage() {
  Services& services = module().services;
  const GenreImage genre = GenreDe(image->Texte());
  if (genre == GenreImage::refuse) {
    RefuseImage();
  } else if (genre == GenreImage::autre) {
    services.pointeur.Normal();
    services.messages.Informe(
        "Ce type de fichier ne sera pas affichable par le visualisateur interne d'images."_1252,
        Icone::information);
    services.pointeur.Sablier();
  }
  return genre != GenreImage::refuse;
}

}  // namespace gastrelle
