// The tab "Supprimer" of the favourites' window: a category with its favourites.

#include "favoris/fenetre/SuppressionFavoris.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;

class SupprimerUneCategorie : public SuppressionFavoris {};

TEST_F(SupprimerUneCategorie, UneCategoriePartApresSesFavorisComptesUnParUn) {
  OuvreSurLesArtisans();
  Supprime(Reponse::oui);
  EXPECT_THAT(
      b.disque.journal(),
      ElementsAre("existe GLFV1.DAT", "existe GLFV2.DAT", "longueur GLV2.DAT", ParcourtFavoris(81),
                  EcritFavori(16), EcritFavori(1), EcritFavori(18), EcritFavori(1), LitCategorie(5),
                  EcritCategorie(5), EcritCategorie(1), "longueur GLFV1.DAT", ParcourtCategories(5),
                  "existe GLFV2.DAT", "existe GLFV1.DAT", "existe GLFV3.DAT", LitFavori(16),
                  LitCategorie(5), "longueur GLFV3.DAT", LitTexte(10, 10), "longueur GLFV3.DAT",
                  LitTexte(20, 12)));
}

TEST_F(SupprimerUneCategorie, UneCategorieEtSesFavorisSEteignentEtRienDAutre) {
  OuvreSurLesArtisans();
  RecFavori affineur = FicheFavori(b, 16);
  RecFavori zinc = FicheFavori(b, 18);
  RecFamille artisans = FicheCategorie(b, 5);
  const std::string reserve = b.dossier.Lit("GLFV3.DAT");
  std::string avant = b.dossier.Lit("GLFV2.DAT");
  Supprime(Reponse::oui);
  affineur.actif = supprime;
  zinc.actif = supprime;
  artisans.actif = supprime;
  avant.replace(15 * 724, 724, Octets(affineur));
  avant.replace(17 * 724, 724, Octets(zinc));
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT"), AvecCompte(avant, 15));
  EXPECT_EQ(Octets(FicheCategorie(b, 5)), Octets(artisans));
  EXPECT_EQ(FicheCategorie(b, 1).actif, 3);
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), reserve);
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "15\nfavoris");
}

TEST_F(SupprimerUneCategorie, SesFavorisRestentListesEtSeMontrentEncore) {
  OuvreSurLesArtisans();
  Supprime(Reponse::oui);
  AttendLaListe();
  EXPECT_EQ(favoris().count(), 17);
  EXPECT_EQ(favoris().currentIndex(), 0);
  EXPECT_EQ(favoriAffiche(), Affineur());
  Choisit(favoris(), "Zinc");
  EXPECT_EQ(favoriAffiche(), SansTexte("Zinc", "Artisans"));
  CliqueOnglet(*fenetre, 4);
  EXPECT_EQ(Textes(categories()),
            (QStringList{Fr("Catégorie 002"), Fr("Catégorie 003"), Fr("Catégorie 004")}));
}

TEST_F(SupprimerUneCategorie, UnFavoriDeFabriqueRangeDansSaCategoriePartAvecElle) {
  OuvreSurLesArtisans();
  RecFavori deplace = FicheFavori(b, 9);
  deplace.idCategorie = 5;
  b.module->bufFavori.Ecrit(9, deplace);
  Supprime(Reponse::oui);
  EXPECT_EQ(FicheFavori(b, 9).actif, supprime);
  EXPECT_EQ(FicheFavori(b, 1).actif, 14);
}

TEST_F(SupprimerUneCategorie, AuDelaDeLaBorneDesVinsUnFavoriVitSansSaCategorie) {
  OuvreSurLesArtisans();
  PoseBorneDesVins(b, 17);
  Supprime(Reponse::oui);
  EXPECT_EQ(FicheFavori(b, 16).actif, supprime);
  EXPECT_EQ(FicheFavori(b, 18).actif, vivant);
  EXPECT_EQ(FicheFavori(b, 18).idCategorie, 5);
  EXPECT_EQ(FicheFavori(b, 1).actif, 16);
  Rouvre();
  Choisit(favoris(), "Zinc");
  EXPECT_EQ(TexteDe("txtCategorie"), "Artisans");
}

TEST_F(SupprimerUneCategorie, RouvrirLaFenetreOublieLesFavorisPartis) {
  OuvreSurLesArtisans();
  Supprime(Reponse::oui);
  Rouvre();
  EXPECT_EQ(favoris().count(), 15);
  EXPECT_EQ(favoris().currentText(), "Boucher");
}

TEST_F(SupprimerUneCategorie, ModifierUnFavoriPartiLEcritVivantSansLeCompter) {
  OuvreSurLesArtisans();
  Supprime(Reponse::oui);
  CliqueOnglet(*fenetre, 3);
  EXPECT_EQ(Le<QComboBox>("ComboCategorie1Modifier").currentIndex(), -1);
  Clique(Le("cmdValideModifier"));
  EXPECT_EQ(FicheFavori(b, 16).actif, vivant);
  EXPECT_EQ(FicheFavori(b, 1).actif, 15);
  // The count is now one too low: the last live favourite is out of the list.
  EXPECT_EQ(favoriAffiche(), Affineur());
  EXPECT_EQ(favoris().findText("Boucher"), -1);
}

TEST_F(SupprimerUneCategorie, SupprimerUnFavoriPartiLeCompteEncoreUneFois) {
  OuvreSurLesArtisans();
  Supprime(Reponse::oui);
  CliqueOnglet(*fenetre, 4);
  Clique(Le("Option3(1)"));
  Supprime(Reponse::oui);
  EXPECT_EQ(FicheFavori(b, 1).actif, 14);
  EXPECT_EQ(favoris().count(), 14);
}

TEST_F(SupprimerUneCategorie, LeFichierDesCategoriesEstChercheAvantCeluiDesFavoris) {
  OuvreSurLesArtisans();
  b.dossier.Supprime("GLFV1.DAT");
  b.dossier.Supprime("GLFV2.DAT");
  ExigePointeurNormalAuxMessages();
  Supprime(Reponse::oui);
  AttendFinFatale(Donnees::GLFV1);
  EXPECT_EQ(onglet(), 4);
}

TEST_F(SupprimerUneCategorie, UneCategorieChercheAussiLeFichierDesFavoris) {
  OuvreSurLesArtisans();
  b.dossier.Supprime("GLFV2.DAT");
  Supprime(Reponse::oui);
  AttendFinFatale(Donnees::GLFV2);
}

TEST_F(SupprimerUneCategorie, UneCategorieFinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      6, 4,
      [](Bibliotheque& autre) {
        autre.GarnitVins();
        autre.GarnitFavoris();
        AjouteDeuxArtisans(autre);
        autre.messages.reponses = {Reponse::oui};
      },
      [](QWidget& uneFenetre) {
        Clique(Trouve(uneFenetre, "Option3(0)"));
        Clique(Trouve(uneFenetre, "cmdValideSupprimer"));
      },
      [](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(FicheFavori(autre, 16).actif, n > 1 ? supprime : vivant);
        EXPECT_EQ(FicheFavori(autre, 18).actif, n > 3 ? supprime : vivant);
        EXPECT_EQ(FicheFavori(autre, 1).actif, n > 4 ? 15 : n > 2 ? 16 : 17);
        EXPECT_EQ(FicheCategorie(autre, 5).actif, n > 5 ? supprime : vivant);
        EXPECT_EQ(FicheCategorie(autre, 1).actif, 4);
      });
}

TEST_F(SupprimerUneCategorie, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurLesArtisans();
  AttendSablier([&] { Supprime(Reponse::oui); });
}

}  // namespace
}  // namespace gastrelle::essai
