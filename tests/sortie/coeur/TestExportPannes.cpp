// The export that fails: at each call of the disk, and for want of a file.

#include <algorithm>
#include <map>

#include <gmock/gmock.h>

#include "doublures/Pannes.h"
#include "sortie/coeur/CoeurExport.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

/// All files of a folder but the document.
std::map<std::string, std::string> AutresFichiers(const Bibliotheque& b) {
  std::map<std::string, std::string> fichiers;
  for (const auto& place : std::filesystem::directory_iterator(b.dossier.chemin())) {
    const std::string nom = place.path().filename().string();
    if (place.is_regular_file() && nom != documentExport) {
      fichiers[nom] = b.dossier.Lit(nom);
    }
  }
  return fichiers;
}

/// Two texts of which none fits into one write, between short ones, and three that follow each
/// other in one family.
void DemarreLong(Bibliotheque& b) {
  constexpr std::size_t longueur = 300000;
  DemarreExport(b, [&] {
    b.AjouteRecette(3, "Longue", std::string(longueur, 'l'));
    b.AjouteRecette(2, "Autre longue", std::string(longueur, 'm'));
    for (const char* suivie : {"Une", "Deux", "Trois"}) {
      b.AjouteRecette(4, suivie, std::string("Le texte de ") + suivie);
    }
  });
}

class PannesDExport : public CoeurExport {
 protected:
  /// Texts that lie together are read together; where that fails the one that is asked for is read
  /// alone.
  static bool EstEnAvance(const std::string& appel) {
    return appel.starts_with("lit GLR3.DAT ") && appel.ends_with("+131072");
  }
  /// The calls of an export that succeeds, and its document.
  static std::vector<std::string> Appels(std::string& document) {
    Bibliotheque temoin;
    DemarreLong(temoin);
    EXPECT_TRUE(EcritExport(*temoin.module, toutesLesFamilles, sansEntreTemps));
    document = temoin.dossier.Lit(documentExport);
    return temoin.disque.journal();
  }
};

TEST_F(PannesDExport, AChaqueAppelDuDisqueCeQuiEstEcritResteEtRienDAutreNeChange) {
  std::string entier;
  const std::vector<std::string> appels = Appels(entier);
  ASSERT_GT(appels.size(), 12U);
  ASSERT_GT(std::count_if(appels.begin(), appels.end(), EstEnAvance), 0);
  for (const Maniere maniere : {Maniere::rienFait, Maniere::moitieEcrite}) {
    for (std::size_t n = 1; n <= appels.size(); ++n) {
      const std::string& appel = appels[n - 1];
      SCOPED_TRACE(appel);
      Bibliotheque avec;
      DemarreLong(avec);
      const auto avant = AutresFichiers(avec);
      const std::string famille = Octets(avec.module->bufFamille.courant());
      const std::string recette = Octets(avec.module->bufRecette.courant());
      avec.disque.EchoueALAppel(n, Panne::disquePlein, maniere);
      const bool ecritEntier = EcritExport(*avec.module, toutesLesFamilles, sansEntreTemps);
      EXPECT_EQ(ecritEntier, EstEnAvance(appel));
      const std::string ecrit = avec.dossier.Lit(documentExport);
      EXPECT_EQ(avec.dossier.A(documentExport), n > 1);
      EXPECT_TRUE(entier.starts_with(ecrit));
      EXPECT_EQ(ecrit.size() == entier.size(), ecritEntier);
      if (n > 1 && !appel.starts_with("écrit")) {
        EXPECT_THAT(ecrit, StartsWith(EnteteExport()));
      }
      EXPECT_EQ(AutresFichiers(avec), avant);
      EXPECT_EQ(avec.messages.vus.size(), appel.starts_with("existe") ? 1U : 0U);
      EXPECT_EQ(Octets(avec.module->bufFamille.courant()), famille);
      EXPECT_EQ(Octets(avec.module->bufRecette.courant()), recette);
      EXPECT_FALSE(avec.module->erreurFatale);
    }
  }
}

TEST_F(PannesDExport, UneEcritureAMoitieFaiteResteAMoitie) {
  DemarreExport(b);
  b.disque.EchoueALaNiemeEcriture(1, Panne::disquePlein, Maniere::moitieEcrite);
  EXPECT_FALSE(Exporte(toutesLesFamilles));
  const std::string entier = ModeleExport();
  EXPECT_EQ(Document(), entier.substr(0, entier.size() / 2));
}

TEST_F(PannesDExport, UnFichierQuiManqueSeDitEtLEnteteReste) {
  for (const char* nom : {"GLR1.DAT", "GLR2.DAT", "GLR3.DAT"}) {
    SCOPED_TRACE(nom);
    Bibliotheque sans;
    DemarreExport(sans);
    sans.dossier.Supprime(nom);
    sans.pointeur.Sablier();
    EXPECT_FALSE(EcritExport(*sans.module, toutesLesFamilles, sansEntreTemps));
    EXPECT_THAT(sans.messages.vus,
                ElementsAre(MessageVu{"Fichier " + sans.module->chemins.De(nom) + "\r\n" +
                                          std::string("non trouvé ou erreur disque."_1252),
                                      Icone::critique, "Gastrelle 2005"}));
    EXPECT_FALSE(sans.pointeur.sablier);
    EXPECT_EQ(sans.dossier.Lit(documentExport), EnteteExport());
    EXPECT_FALSE(sans.dossier.A(nom));
  }
}

TEST_F(PannesDExport, DePlusieursFichiersQuiManquentLePremierSeDit) {
  DemarreExport(b);
  b.dossier.Supprime("GLR3.DAT");
  b.dossier.Supprime("GLR2.DAT");
  EXPECT_FALSE(Exporte(toutesLesFamilles));
  ASSERT_EQ(b.messages.vus.size(), 1U);
  EXPECT_THAT(b.messages.vus.front().texte,
              StartsWith("Fichier " + b.module->chemins.De("GLR2.DAT")));
}

TEST_F(PannesDExport, UneLongueurNegativeArreteLExportApresSonTitre) {
  DemarreExport(b);
  RecRecette recette;
  b.module->bufRecette.Lit(7, recette);
  recette.lgTexte = -1;
  b.module->bufRecette.Ecrit(7, recette);
  EXPECT_FALSE(Exporte(toutesLesFamilles));
  const std::string entier = ModeleExport();
  EXPECT_EQ(Document(), entier.substr(0, entier.find("Une nuit.")));
}

// The recipes' file is gone through once, behind the first family.
TEST_F(PannesDExport, UneLectureQuiManqueLaisseLaPremiereFamille) {
  DemarreExport(b);
  b.disque.EchoueSur("lit GLR2.DAT", Panne::entreeSortie);
  EXPECT_FALSE(Exporte(toutesLesFamilles));
  EXPECT_EQ(Document(), EnteteExport() + "* Famille de recettes : POTAGES\r\n\r\n");
}

TEST_F(PannesDExport, UnTexteIllisibleLaisseToutCeQuiLePrecede) {
  DemarreExport(b);
  b.disque.EchoueSur("lit GLR3.DAT", Panne::entreeSortie);
  EXPECT_FALSE(Exporte(toutesLesFamilles));
  const std::string entier = ModeleExport();
  EXPECT_EQ(Document(), entier.substr(0, entier.find("Un velout")));
}

// The room for the document.

using PlaceDeLExport = CoeurExport;

TEST_F(PlaceDeLExport, EstLibreSansQuestionQuandRienNYEst) {
  b.Demarre();
  EXPECT_TRUE(AccepteExport(*b.module));
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe export.doc"));
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

TEST_F(PlaceDeLExport, QuiRefuseGardeSonDocument) {
  b.Demarre();
  b.dossier.Ecrit(documentExport, "ancien");
  b.messages.reponses = {Reponse::non};
  EXPECT_FALSE(AccepteExport(*b.module));
  EXPECT_EQ(Document(), "ancien");
  EXPECT_THAT(
      b.messages.questions,
      ElementsAre(std::string("Un fichier EXPORT.DOC existe déjà dans le dossier\r\n"_1252) +
                  b.module->chemins.cheminAppli() +
                  std::string("\r\nVoulez-vous l'écraser ?"_1252)));
  EXPECT_EQ(b.messages.choix, Choix::ouiNon);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(PlaceDeLExport, QuiAccepteLePerdAvantQueLeNouveauSoitEcrit) {
  b.Demarre();
  b.dossier.Ecrit(documentExport, "ancien");
  b.messages.reponses = {Reponse::oui};
  EXPECT_TRUE(AccepteExport(*b.module));
  EXPECT_FALSE(b.dossier.A(documentExport));
}

TEST_F(PlaceDeLExport, UneSuppressionQuiEchoueNeSeDitPas) {
  DemarreExport(b);
  b.dossier.Ecrit(documentExport, std::string(10000, 'x'));
  b.messages.reponses = {Reponse::oui};
  b.disque.EchoueSur("supprime", Panne::permissionRefusee);
  EXPECT_TRUE(AccepteExport(*b.module));
  EXPECT_TRUE(b.dossier.A(documentExport));
  EXPECT_TRUE(Exporte(toutesLesFamilles));
  EXPECT_EQ(Document(), ModeleExport());
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(PlaceDeLExport, UneRechercheQuiEchoueNeDemandeRien) {
  b.Demarre();
  b.dossier.Ecrit(documentExport, "ancien");
  b.disque.EchoueSur("existe export.doc", Panne::entreeSortie);
  EXPECT_TRUE(AccepteExport(*b.module));
  EXPECT_EQ(Document(), "ancien");
}

}  // namespace
}  // namespace gastrelle::essai
