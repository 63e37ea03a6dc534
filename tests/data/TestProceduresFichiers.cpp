// The small procedures around the files, and the operation guard.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Limites.h"
#include "data/ProceduresFichiers.h"
#include "doublures/Depart.h"
#include "doublures/Pannes.h"
#include "plateforme/TexteChemin.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Procedures : public testing::Test {
 protected:
  Procedures() {
    b.Demarre();
    b.pointeur.sablier = true;
  }

  Bibliotheque b;
  Module1& module = *b.module;
};

TEST_F(Procedures, FichierExisteTrouveUnFichierDuDossier) {
  EXPECT_TRUE(FichierExiste(module, "GLR1.DAT"));
  EXPECT_FALSE(FichierExiste(module, "GLR9.DAT"));
  EXPECT_FALSE(FichierExiste(module, "IMAGE"));
}

TEST_F(Procedures, FichierExisteDitNonSansChercherPourUnNomVide) {
  EXPECT_FALSE(FichierExiste(module, ""));
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(Procedures, FichierExisteDitNonEnSilenceQuandLaRechercheEchoue) {
  b.disque.EchoueSur("existe", Panne::entreeSortie);
  EXPECT_FALSE(FichierExiste(module, "GLR1.DAT"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_TRUE(b.pointeur.sablier);
}

TEST_F(Procedures, FichierExisteMsgSeTaitSurUnFichierPresent) {
  EXPECT_TRUE(FichierExisteMsg(module, "GLR1.DAT"));
  EXPECT_TRUE(FichierExisteMsg(module, Donnees::GLFV3));
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_TRUE(b.pointeur.sablier);
}

TEST_F(Procedures, FichierExisteMsgDitLeCheminDUnFichierAbsent) {
  EXPECT_FALSE(FichierExisteMsg(module, "GLR9.DAT"));
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, "GLR9.DAT")));
  EXPECT_EQ(b.messages.bips, 0);
}

TEST_F(Procedures, FichierExisteMsgRendLePointeurAvantDeParler) {
  b.messages.pendant = [&] { EXPECT_FALSE(b.pointeur.sablier); };
  EXPECT_FALSE(FichierExisteMsg(module, "GLR9.DAT"));
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(Procedures, FichierExisteMsgParleAussiQuandLaRechercheEchoue) {
  b.disque.EchoueSur("existe GLV2.DAT", Panne::entreeSortie);
  EXPECT_FALSE(FichierExisteMsg(module, Donnees::GLV2));
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, "GLV2.DAT")));
}

TEST_F(Procedures, ExigeFichierEchoueParLErreur53) {
  b.dossier.Supprime("GLT2.DAT");
  try {
    ExigeFichier(module, Donnees::GLT2);
    ADD_FAILURE() << "aucune panne";
  } catch (const ErreurExecution& erreur) {
    EXPECT_EQ(erreur.numero(), 53);
  }
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, "GLT2.DAT")));
}

TEST_F(Procedures, UnFichierExigeSousLaGardeFinitLeProgrammeApresSonMessage) {
  b.dossier.Supprime("GLT2.DAT");
  EXPECT_EQ(FinDe([&] { Garde(module, [&] { ExigeFichier(module, Donnees::GLT2); }); }), 1);
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, "GLT2.DAT"), Fatal()));
}

TEST_F(Procedures, ExigeEnSilenceUnFichierPresent) {
  ExigeFichier(module, Donnees::GLT2);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(Procedures, UnFichierExigeSansGardeFinitAussitotLeProgramme) {
  b.dossier.Supprime("GLFV3.DAT");
  std::vector<bool> sabliers;
  b.messages.pendant = [&] { sabliers.push_back(b.pointeur.sablier); };
  EXPECT_EQ(FinDe([&] { ExigeFichierOuFinit(module, Donnees::GLFV3); }), 1);
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, "GLFV3.DAT"), Fatal()));
  EXPECT_THAT(sabliers, ElementsAre(false, false));
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_FALSE(module.erreurFatale);
}

TEST_F(Procedures, UneRechercheManqueeSansGardeFinitAussiLeProgramme) {
  b.disque.EchoueSur("existe GLFV3.DAT", Panne::entreeSortie);
  EXPECT_EQ(FinDe([&] { ExigeFichierOuFinit(module, Donnees::GLFV3); }), 1);
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, "GLFV3.DAT"), Fatal()));
}

TEST_F(Procedures, UnFichierPresentExigeSansGardeLaisseLeProgrammeContinuer) {
  EXPECT_NO_THROW(ExigeFichierOuFinit(module, Donnees::GLFV3));
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLFV3.DAT"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_TRUE(b.pointeur.sablier);
}

TEST_F(Procedures, DossierExisteNeTrouveQueLesDossiers) {
  EXPECT_TRUE(DossierExiste(module, "IMAGE"));
  EXPECT_FALSE(DossierExiste(module, "SAUVE"));
  EXPECT_FALSE(DossierExiste(module, "GLR1.DAT"));
}

TEST_F(Procedures, DossierExisteDitNonEnSilenceQuandLaRechercheEchoue) {
  b.disque.EchoueSur("dossier?", Panne::entreeSortie);
  EXPECT_FALSE(DossierExiste(module, "IMAGE"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(Procedures, ImageExisteChercheDansLeDossierOuAilleurs) {
  const DossierEssai autre;
  autre.Ecrit("tarte.jpg", "");
  b.dossier.Ecrit("IMAGE/soupe.jpg", "");
  EXPECT_TRUE(ImageExiste(module, module.chemins.De("IMAGE/soupe.jpg")));
  EXPECT_FALSE(ImageExiste(module, module.chemins.De("IMAGE/tarte.jpg")));
  EXPECT_TRUE(ImageExiste(module, DepuisUtf8(EnUtf8(autre.chemin() / "tarte.jpg"))));
  EXPECT_FALSE(ImageExiste(module, DepuisUtf8(EnUtf8(autre.chemin() / "soupe.jpg"))));
}

TEST_F(Procedures, ImageExisteDitNonQuandLaRechercheEchoue) {
  b.dossier.Ecrit("IMAGE/soupe.jpg", "");
  b.disque.EchoueSur("existe IMAGE/", Panne::entreeSortie);
  EXPECT_FALSE(ImageExiste(module, module.chemins.De("IMAGE/soupe.jpg")));
}

TEST_F(Procedures, ImageExisteNeChercheAucunCheminPlusLongQueCeuxDesSystemes) {
  b.disque.OublieJournal();
  EXPECT_FALSE(ImageExiste(module, std::string(std::size_t{limiteChemin} + 1, '/')));
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_FALSE(ImageExiste(module, std::string(std::size_t{limiteChemin}, 'x')));
  EXPECT_THAT(b.disque.journal(), testing::SizeIs(1));
}

/// Paths of a program folder whose name the files can hold, or can't.
class CheminsDuDossier : public testing::TestWithParam<const char*> {
 protected:
  [[nodiscard]] std::string Vrai(const char* nom) const {
    return EnUtf8((b.dossier.chemin() / CheminDe(nom)).make_preferred());
  }

  Bibliotheque b{GetParam()};
  Module1& module = *b.module;
};

TEST_P(CheminsDuDossier, VontAuSystemeParLeVraiDossier) {
  EXPECT_EQ(CheminSysteme(module, module.chemins.De("IMAGE/cr\xE8me.jpg")),
            Vrai("IMAGE/crème.jpg"));
  EXPECT_EQ(CheminSysteme(module, module.chemins.De("//IMAGE/a.jpg")), Vrai("IMAGE/a.jpg"));
}

TEST_P(CheminsDuDossier, EnReviennentDansLesTermesDuProgramme) {
  EXPECT_EQ(CheminProgramme(module, Vrai("IMAGE/crème.jpg")),
            module.chemins.Developpe("/cr\xE8me.jpg"));
  EXPECT_EQ(CheminProgramme(module, Vrai("IMAGE/寿司.jpg")), module.chemins.Developpe("/??.jpg"));
}

TEST_P(CheminsDuDossier, AilleursRestentCeQuIlsSont) {
  EXPECT_EQ(CheminSysteme(module, "/ailleurs/cr\xE8me.jpg"), "/ailleurs/crème.jpg");
  EXPECT_EQ(CheminProgramme(module, "/ailleurs/crème.jpg"), "/ailleurs/cr\xE8me.jpg");
  const std::string voisin = EnUtf8(b.dossier.chemin()) + "2/a.jpg";
  EXPECT_EQ(CheminProgramme(module, voisin), DepuisUtf8(voisin));
}

TEST_P(CheminsDuDossier, YTrouventUneImageQuelsQueSoientLesSeparateurs) {
  b.Demarre();
  b.dossier.Ecrit("IMAGE/a.jpg", "");
  EXPECT_TRUE(ImageExiste(module, module.chemins.De("IMAGE/a.jpg")));
  EXPECT_TRUE(ImageExiste(module, module.chemins.De("/IMAGE/a.jpg")));
  EXPECT_FALSE(ImageExiste(module, module.chemins.De("/IMAGE/b.jpg")));
}

INSTANTIATE_TEST_SUITE_P(Noms, CheminsDuDossier,
                         testing::Values("gastrelle", "épicerie", "łukasz"));

TEST_F(Procedures, ErreurFataleRendLePointeurBipeParlePuisFinit) {
  b.messages.pendant = [&] {
    EXPECT_FALSE(b.pointeur.sablier);
    EXPECT_EQ(b.messages.bips, 1);
  };
  EXPECT_EQ(FinDe([&] { ErreurFatale(module); }), 1);
  EXPECT_THAT(b.messages.vus, ElementsAre(Fatal()));
}

TEST_F(Procedures, GardeLaissePasserUneOperationReussie) {
  bool faite = false;
  Garde(module, [&] { faite = true; });
  EXPECT_TRUE(faite);
  EXPECT_FALSE(module.erreurFatale);
  EXPECT_FALSE(b.pointeur.sablier);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(Procedures, GardeFinitLeProgrammeSurUnePanne) {
  EXPECT_EQ(FinDe([&] { Garde(module, [] { throw ErreurExecution(Panne::disquePlein); }); }), 1);
  EXPECT_TRUE(module.erreurFatale);
  EXPECT_THAT(b.messages.vus, ElementsAre(Fatal()));
}

TEST_F(Procedures, FinOperationFinitLeProgrammeQuandLeDrapeauEstLeve) {
  FinOperation(module);
  EXPECT_FALSE(b.pointeur.sablier);
  module.erreurFatale = true;
  EXPECT_EQ(FinDe([&] { FinOperation(module); }), 1);
}

TEST_F(Procedures, LaGardeLeveLeDrapeauEtFinitLeProgramme) {
  Garde(module, [] {});
  EXPECT_FALSE(module.erreurFatale);
  EXPECT_EQ(FinDe([&] { Garde(module, [] { throw ErreurExecution(Panne::disquePlein); }); }), 1);
  EXPECT_TRUE(module.erreurFatale);
  EXPECT_THAT(b.messages.vus, ElementsAre(Fatal()));
  EXPECT_EQ(FinDe([&] { Garde(module, [] {}); }), 1);  // a later success doesn't clear it
}

TEST_F(Procedures, UneOperationEstSousLeSablierJusquASaFin) {
  bool pendant = false;
  Opere(module, [&] { pendant = b.pointeur.sablier; });
  EXPECT_TRUE(pendant);
  EXPECT_FALSE(b.pointeur.sablier);
}

/// The four recipe files, closed as a maintenance action leaves them.
class Reouverture : public Procedures {
 protected:
  Reouverture() {
    for (const Donnees fichier : recettes) {
      module.Place(fichier).reset();
    }
  }

  [[nodiscard]] std::vector<Donnees> Ouverts() const {
    std::vector<Donnees> ouverts;
    std::copy_if(recettes.begin(), recettes.end(), std::back_inserter(ouverts),
                 [&](Donnees fichier) { return module.Place(fichier) != nullptr; });
    return ouverts;
  }

  /// Changes one byte of a file so that its header is bad.
  void Abime(Donnees fichier) const {
    std::string octets = b.dossier.Lit(Nom(fichier));
    octets[octets.find(Signature(fichier))] = 'x';
    b.dossier.Ecrit(Nom(fichier), octets);
  }

  static constexpr std::array recettes{Donnees::GLR1, Donnees::GLR2, Donnees::GLR3, Donnees::GLR4};
};

TEST_F(Reouverture, OuvreEtVerifieChaqueFichierAvantLeSuivant) {
  EXPECT_TRUE(OuvreFichiersRecettes(module, true));
  EXPECT_THAT(
      b.disque.journal(),
      ElementsAre("ouvre GLR1.DAT", "lit GLR1.DAT 0+130", "ouvre GLR2.DAT", "lit GLR2.DAT 0+150",
                  "ouvre GLR3.DAT", "lit GLR3.DAT 0+8", "ouvre GLR4.DAT", "lit GLR4.DAT 0+8"));
  EXPECT_THAT(Ouverts(), testing::ElementsAreArray(recettes));
}

TEST_F(Reouverture, NeLitRienSansVerification) {
  for (const Donnees fichier : recettes) {
    Abime(fichier);
  }
  EXPECT_TRUE(OuvreFichiersRecettes(module, false));
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("ouvre GLR1.DAT", "ouvre GLR2.DAT", "ouvre GLR3.DAT", "ouvre GLR4.DAT"));
}

TEST_F(Reouverture, SArreteEnSilenceAuPremierMauvaisEnTete) {
  for (const Donnees fichier : recettes) {
    const std::string bon = b.dossier.Lit(Nom(fichier));
    Abime(fichier);
    EXPECT_FALSE(OuvreFichiersRecettes(module, true)) << Nom(fichier);
    EXPECT_EQ(Ouverts().back(), fichier);
    b.dossier.Ecrit(Nom(fichier), bon);
    for (const Donnees autre : recettes) {
      module.Place(autre).reset();
    }
  }
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_FALSE(module.erreurFatale);
}

TEST_F(Reouverture, ExigeAuMoinsUneFamilleEtUneRecette) {
  for (const Donnees fichier : {Donnees::GLR1, Donnees::GLR2}) {
    const std::string bon = b.dossier.Lit(Nom(fichier));
    b.dossier.Ecrit(Nom(fichier), std::string(2, '\0') + bon.substr(2));
    EXPECT_FALSE(OuvreFichiersRecettes(module, true)) << Nom(fichier);
    b.dossier.Ecrit(Nom(fichier), bon);
  }
  EXPECT_TRUE(OuvreFichiersRecettes(module, true));
}

TEST_F(Reouverture, LaisseFermesLesFichiersDerriereUneOuvertureManquee) {
  b.disque.EchoueSur("ouvre GLR3.DAT", Panne::permissionRefusee);
  EXPECT_FALSE(OuvreFichiersRecettes(module, true));
  EXPECT_THAT(Ouverts(), ElementsAre(Donnees::GLR1, Donnees::GLR2));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
