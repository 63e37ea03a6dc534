// Reading families and recipes: what the scans list, where they stop, what a recipe shows.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Entetes.h"
#include "plateforme/TexteChemin.h"
#include "recettes/LectureRecettes.h"
#include "recettes/RecettesEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Lecture : public testing::Test {
 protected:
  /// Writes recipe 2 with these references and forgets the journal.
  void PoseReferences(std::int32_t posTexte, std::int32_t lgTexte, std::int32_t posImage,
                      std::int32_t lgImage) {
    auto fiche = Fiche();
    fiche.posTexte = posTexte;
    fiche.lgTexte = lgTexte;
    fiche.posImage = posImage;
    fiche.lgImage = lgImage;
    b.module->bufRecette.Ecrit(2, fiche);
    b.disque.OublieJournal();
  }
  [[nodiscard]] RecRecette Fiche() const {
    return Enregistrement<RecRecette>(b.dossier, "GLR2.DAT", 2);
  }

  Bibliotheque b;
};

TEST_F(Lecture, ListeLesFamillesVivantesDansLOrdreDesFiches) {
  b.AjouteFamille("  Poissons ");
  b.Demarre();
  EXPECT_THAT(ListeFamilles(*b.module),
              ElementsAre(EntreeListe{"Potages", 2}, EntreeListe{"Poissons", 3}));
}

TEST_F(Lecture, ArreteLesFamillesAuCompteOuAuDernierEnregistrementSansRienReparer) {
  b.AjouteFamille("Poissons");
  PoseCompte(b, "GLR1.stp", 1);
  b.Demarre();
  EXPECT_EQ(ListeFamilles(*b.module).size(), 1U);
  b.module->bufFamille.nbActifs() = 9;
  EXPECT_EQ(ListeFamilles(*b.module).size(), 2U);
  EXPECT_EQ(b.module->bufFamille.nbActifs(), 9);
  EXPECT_THAT(b.disque.changements(), ElementsAre());
}

TEST_F(Lecture, NeListeQueLesRecettesVivantesDeLaFamilleAvecLeurVraiNumero) {
  const std::int32_t famille = b.AjouteFamille("Poissons");
  b.AjouteRecette(famille, "Sole");
  const std::int32_t supprimee = b.AjouteRecette(famille, "Raie");
  b.AjouteRecette(2, "Bisque");
  b.AjouteRecette(famille, "Bar");
  EffaceRecette(b, supprimee);
  PoseCompte(b, "GLR2.stp", 4);
  b.Demarre();
  EXPECT_THAT(RecettesDeFamille(*b.module, famille),
              ElementsAre(EntreeListe{"Sole", 3}, EntreeListe{"Bar", 6}));
  // The others were counted on the way.
  EXPECT_EQ(b.module->bufRecette.nbActifs(), 4);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Lecture, CompteTropBasLaisseLesDernieresRecettesHorsDeLaListe) {
  for (const char* titre : {"A", "B", "C"}) {
    b.AjouteRecette(2, titre);
  }
  PoseCompte(b, "GLR2.stp", 1);
  b.Demarre();
  EXPECT_EQ(ToutesRecettes(*b.module).size(), 1U);
  EXPECT_EQ(b.module->bufRecette.nbActifs(), 1);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Lecture, CompteTropHautVaJusquAuDernierEnregistrementEtSeRepare) {
  b.AjouteRecette(b.AjouteFamille("Poissons"), "A");
  PoseCompte(b, "GLR2.stp", 5);
  b.Demarre();
  EXPECT_EQ(ToutesRecettes(*b.module).size(), 2U);
  EXPECT_EQ(b.module->bufRecette.nbActifs(), 2);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLR2.DAT 0+150"));
  b.module->bufRecette.nbActifs() = 5;
  b.disque.OublieJournal();
  EXPECT_EQ(RecettesDeFamille(*b.module, 3).size(), 1U);
  EXPECT_EQ(Enregistrement<RecRecette>(b.dossier, "GLR2.DAT", 1).actif, 2);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLR2.DAT 0+150"));
}

TEST_F(Lecture, UneReparationDuCompteQuiEchoueEstIgnoree) {
  PoseCompte(b, "GLR2.stp", 5);
  b.Demarre();
  b.disque.EchoueSur("écrit", Panne::disquePlein);
  EXPECT_EQ(ToutesRecettes(*b.module).size(), 1U);
  EXPECT_EQ(b.module->bufRecette.nbActifs(), 1);
  EXPECT_EQ(Enregistrement<RecRecette>(b.dossier, "GLR2.DAT", 1).actif, 5);
}

TEST_F(Lecture, LesListesDeRecettesExigentLeurFichierEtCelleDesFamillesAucun) {
  b.Demarre();
  b.dossier.Supprime("GLR2.DAT");
  EXPECT_THROW(RecettesDeFamille(*b.module, 2), ErreurExecution);
  EXPECT_THROW(ToutesRecettes(*b.module), ErreurExecution);
  EXPECT_THROW(LitEnregistrementRecette(*b.module, 2), ErreurExecution);
  EXPECT_EQ(b.messages.vus.size(), 3U);
  b.dossier.Supprime("GLR1.DAT");
  EXPECT_EQ(ListeFamilles(*b.module).size(), 1U);
  EXPECT_THROW(ExigeFamilles(*b.module), ErreurExecution);
  EXPECT_EQ(b.messages.vus.size(), 4U);
}

TEST_F(Lecture, UnEnregistrementSeLitACoteDeLaRecetteAffichee) {
  b.AjouteRecette(2, "Bisque");
  b.Demarre();
  LitRecette(*b.module, 2);
  b.disque.OublieJournal();
  EXPECT_EQ(Rogne(LitEnregistrementRecette(*b.module, 3).nomRecette.brut()), "Bisque");
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLR2.DAT", "existe GLR3.DAT", "lit GLR2.DAT 300+150"));
  EXPECT_EQ(Rogne(b.module->bufRecette.courant().nomRecette.brut()), "Velouté"_1252);
}

TEST_F(Lecture, UnFichierReduitASonEnteteNeDonneAucuneRecette) {
  b.Demarre();
  b.dossier.Ecrit("GLR2.DAT", b.dossier.Lit("GLR2.DAT").substr(0, 150));
  EXPECT_TRUE(ToutesRecettes(*b.module).empty());
  EXPECT_EQ(b.module->bufRecette.nbActifs(), 0);
}

TEST_F(Lecture, LEnregistrementDeTravailGardeLeDernierLu) {
  b.AjouteRecette(2, "Bisque");
  b.Demarre();
  ToutesRecettes(*b.module);
  EXPECT_EQ(Rogne(b.module->bufRecette.courant().nomRecette.brut()), "Bisque");
}

TEST_F(Lecture, MontreLesTrenteMillePremiersOctetsDUnTexte) {
  const std::string texte(30001, 'x');
  const std::int32_t numero = b.AjouteRecette(2, "Longue", texte);
  b.Demarre();
  EXPECT_EQ(LitRecette(*b.module, numero).texte, texte.substr(0, 30000));
}

TEST_F(Lecture, UneRecetteSansTexteNiImageEstVide) {
  const std::int32_t numero = b.AjouteRecette(2, "Nue");
  b.Demarre();
  const RecetteLue lue = LitRecette(*b.module, numero);
  EXPECT_EQ(lue.texte, "");
  EXPECT_FALSE(lue.associee);
}

TEST_F(Lecture, DeveloppeLaFormeCourteDUneImagePresente) {
  const std::int32_t numero = b.AjouteRecette(2, "Avec", {}, "/soupe.png");
  b.Demarre();
  b.dossier.Ecrit("IMAGE/soupe.png", "x");
  const RecetteLue lue = LitRecette(*b.module, numero);
  EXPECT_TRUE(lue.associee);
  EXPECT_EQ(lue.image, b.module->chemins.Developpe("/soupe.png"));
  EXPECT_THAT(b.disque.changements(), ElementsAre());
}

TEST_F(Lecture, SuitUnCheminEntierHorsDuDossier) {
  const DossierEssai ailleurs;
  ailleurs.Ecrit("photo.jpg", "x");
  const std::string chemin = EnUtf8(ailleurs.chemin() / "photo.jpg");
  const std::int32_t numero = b.AjouteRecette(2, "Avec", {}, chemin);
  b.Demarre();
  EXPECT_EQ(LitRecette(*b.module, numero).image, chemin);
}

/// Files that come from another system: what lies in the folder of pictures is found there, what
/// lay elsewhere is told as lost.
TEST_F(Lecture, TrouveLImageDuDossierDUnAutreSystemeEtDitPerdueCelleDAilleurs) {
  const std::int32_t dossier = b.AjouteRecette(2, "Du dossier", {}, "/Crème.PNG"_1252);
  const std::int32_t lecteur = b.AjouteRecette(2, "D'un lecteur", {}, "C:\\Photos\\x.jpg");
  const std::int32_t maison = b.AjouteRecette(2, "D'une maison", {}, "/home/anne/x.jpg");
  b.Demarre();
  b.dossier.Ecrit("IMAGE/Crème.PNG", "x");
  EXPECT_EQ(LitRecette(*b.module, dossier).image, b.module->chemins.Developpe("/Crème.PNG"_1252));
  EXPECT_EQ(LitRecette(*b.module, lecteur).imagePerdue, "C:\\Photos\\x.jpg");
  EXPECT_EQ(LitRecette(*b.module, maison).imagePerdue,
            b.module->chemins.Developpe("/home/anne/x.jpg"));
}

TEST_F(Lecture, DelieUneImageDisparueDansLaFicheEtLaisseLeCheminDansLaReserve) {
  const std::int32_t numero = b.AjouteRecette(2, "Avec", "texte", "/partie.png");
  b.Demarre();
  const std::string reserve = b.dossier.Lit("GLR4.DAT");
  const RecetteLue lue = LitRecette(*b.module, numero);
  EXPECT_EQ(lue.image, "");
  EXPECT_EQ(lue.imagePerdue, b.module->chemins.Developpe("/partie.png"));
  const auto fiche = Enregistrement<RecRecette>(b.dossier, "GLR2.DAT", 3);
  EXPECT_EQ(fiche.posImage, 0);
  EXPECT_EQ(fiche.lgImage, 0);
  EXPECT_EQ(fiche.lgTexte, 5);
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), reserve);
  EXPECT_FALSE(LitRecette(*b.module, numero).associee);
}

TEST_F(Lecture, UneRechercheDImageQuiEchoueVautAbsence) {
  const std::int32_t numero = b.AjouteRecette(2, "Avec", {}, "/soupe.png");
  b.Demarre();
  b.dossier.Ecrit("IMAGE/soupe.png", "x");
  b.disque.EchoueSur("existe IMAGE/", Panne::permissionRefusee);
  EXPECT_EQ(LitRecette(*b.module, numero).image, "");
}

TEST_F(Lecture, ExigeLesTroisFichiersDansLOrdreAvantDeLire) {
  b.Demarre();
  LitRecette(*b.module, 2);
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLR2.DAT", "existe GLR3.DAT", "existe GLR4.DAT",
                          "lit GLR2.DAT 150+150", "longueur GLR3.DAT", "lit GLR3.DAT 8+11"));
}

TEST_F(Lecture, UnFichierDisparuEstDitPuisEchoue) {
  b.Demarre();
  b.dossier.Supprime("GLR4.DAT");
  EXPECT_THROW(LitRecette(*b.module, 2), ErreurExecution);
  EXPECT_THAT(b.messages.vus,
              ElementsAre(MessageVu{"Fichier " + b.module->chemins.De("GLR4.DAT") + "\r\n" +
                                        std::string("non trouvé ou erreur disque."_1252),
                                    Icone::critique, "Gastrelle 2005"}));
}

TEST_F(Lecture, UneLongueurNegativeEstUnePanne) {
  b.Demarre();
  PoseReferences(9, -1, 0, 0);
  EXPECT_THROW(LitRecette(*b.module, 2), ErreurExecution);
}

TEST_F(Lecture, UnePositionDeTexteNegativeNeMontreAucunTexte) {
  b.Demarre();
  PoseReferences(-5, 11, 0, 0);
  EXPECT_EQ(LitRecette(*b.module, 2).texte, "");
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Lecture, UnePositionDImageNegativeEstUnePanneQuiLaisseLaFiche) {
  b.Demarre();
  PoseReferences(9, 11, -1, 6);
  EXPECT_THROW(LitRecette(*b.module, 2), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(Fiche().posImage, -1);
  EXPECT_EQ(Fiche().lgImage, 6);
}

TEST_F(Lecture, UneImageSansCheminEstPerdueEtDeliee) {
  b.Demarre();
  for (const auto& [posImage, lgImage] : {std::pair{9, 0}, std::pair{5000, 6}}) {
    SCOPED_TRACE(posImage);
    PoseReferences(9, 11, posImage, lgImage);
    const RecetteLue lue = LitRecette(*b.module, 2);
    EXPECT_EQ(lue.texte, "Un velouté."_1252);
    EXPECT_EQ(lue.image, "");
    EXPECT_EQ(lue.imagePerdue, std::string());
    EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLR2.DAT 150+150"));
    EXPECT_EQ(Fiche().posImage, 0);
    EXPECT_EQ(Fiche().lgImage, 0);
    EXPECT_EQ(Fiche().lgTexte, 11);
  }
}

}  // namespace
}  // namespace gastrelle::essai
