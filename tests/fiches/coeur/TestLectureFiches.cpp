// Reading menus and tips: what the scan lists and repairs, what a record shows.

#include <gmock/gmock.h>

#include "fiches/FichesEssai.h"

namespace gastrelle::essai {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class LectureDesFiches : public testing::TestWithParam<CatalogueEssai> {
 protected:
  LectureDesFiches() { b.GarnitFiches(c.fiches); }

  void Demarre() { b.Demarre(); }
  std::int32_t Ajoute(std::string_view titre, std::string_view texte = {}) {
    return b.AjouteFiche(c.fiches, titre, texte);
  }
  /// The entries behind those of the factory.
  Liste Ajoutees() {
    Liste liste = ListeFiches(*b.module, c.fichiers);
    liste.erase(liste.begin(), liste.begin() + (c.dernierProtege - 1));
    return liste;
  }
  RecFiche& courante() { return (*b.module.*c.fichiers.tampon).courant(); }
  void PoseFiche(std::int32_t numero, std::int32_t position, std::int32_t longueur) {
    RecFiche fiche = Fiche(b, c, numero);
    fiche.posTexte = position;
    fiche.lgTexte = longueur;
    (*b.module.*c.fichiers.tampon).Ecrit(numero, fiche);
  }

  const CatalogueEssai& c = GetParam();
  const std::int32_t premiere = c.dernierProtege + 1;
  Bibliotheque b;
};

INSTANTIATE_TEST_SUITE_P(Coeur, LectureDesFiches, testing::Values(lesMenus, lesTrucs),
                         testing::PrintToStringParamName());

TEST_P(LectureDesFiches, ListeLesTitresRognesAvecLeurNumero) {
  Ajoute("  Noël "_1252);
  Ajoute("Noël"_1252);
  Demarre();
  EXPECT_THAT(Ajoutees(), ElementsAre(EntreeListe{std::string("Noël"_1252), premiere},
                                      EntreeListe{std::string("Noël"_1252), premiere + 1}));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_P(LectureDesFiches, PasseLesFichesSupprimeesSansDecalerLesNumeros) {
  Ajoute("Morte");
  Ajoute("Vive");
  SupprimeSurFichier(b, c.fiches, premiere);
  PoseCompte(b, NomFabrique(c.fiches), static_cast<std::int16_t>(c.dernierProtege));
  Demarre();
  EXPECT_THAT(Ajoutees(), ElementsAre(EntreeListe{"Vive", premiere + 1}));
}

TEST_P(LectureDesFiches, UnCompteTropBasLaisseLesDernieresFichesHorsDeLaListe) {
  Ajoute("Vue");
  Ajoute("Perdue");
  PoseCompte(b, NomFabrique(c.fiches), static_cast<std::int16_t>(c.dernierProtege));
  Demarre();
  EXPECT_THAT(Ajoutees(), ElementsAre(EntreeListe{"Vue", premiere}));
  EXPECT_EQ(NombreFiches(*b.module, c.fichiers), c.dernierProtege);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_P(LectureDesFiches, UnCompteTropHautEstRepareEnMemoireEtDansLEntete) {
  Ajoute("Vue");
  PoseCompte(b, NomFabrique(c.fiches), 300);
  Demarre();
  EXPECT_THAT(Ajoutees(), ElementsAre(EntreeListe{"Vue", premiere}));
  EXPECT_EQ(NombreFiches(*b.module, c.fichiers), c.dernierProtege);
  EXPECT_THAT(b.disque.changements(), ElementsAre(EcritFiche(c, 1)));
  EXPECT_EQ(Compte(b, c), c.dernierProtege);
  EXPECT_EQ(Rogne(Fiche(b, c, 1).titre.brut()), Nom(c.fiches));
}

TEST_P(LectureDesFiches, UneReparationQuiEchoueEstIgnoree) {
  PoseCompte(b, NomFabrique(c.fiches), 300);
  Demarre();
  b.disque.EchoueSur("écrit", Panne::disquePlein);
  EXPECT_THAT(Ajoutees(), IsEmpty());
  EXPECT_EQ(NombreFiches(*b.module, c.fichiers), c.dernierProtege - 1);
  EXPECT_EQ(Compte(b, c), 300);
}

TEST_P(LectureDesFiches, UnFichierReduitASonEnteteNeDonneRien) {
  Demarre();
  b.dossier.Ecrit(Nom(c.fiches), b.dossier.Lit(Nom(c.fiches)).substr(0, 138));
  EXPECT_THAT(ListeFiches(*b.module, c.fichiers), IsEmpty());
  EXPECT_EQ(NombreFiches(*b.module, c.fichiers), 0);
}

TEST_P(LectureDesFiches, LaFicheDeTravailGardeLaDerniereLue) {
  Ajoute("Noce");
  Demarre();
  ASSERT_FALSE(ListeFiches(*b.module, c.fichiers).empty());
  EXPECT_EQ(Rogne(courante().titre.brut()), "Noce");
}

TEST_P(LectureDesFiches, UnFichierDeFichesDisparuEstDitPuisEchoue) {
  Demarre();
  b.dossier.Supprime(Nom(c.fiches));
  EXPECT_THROW(static_cast<void>(ListeFiches(*b.module, c.fichiers)), ErreurExecution);
  EXPECT_THROW(static_cast<void>(LitFiche(*b.module, c.fichiers, 2)), ErreurExecution);
  ASSERT_EQ(b.messages.vus.size(), 2U);
  EXPECT_THAT(b.messages.vus[0].texte, HasSubstr(Nom(c.fiches)));
  EXPECT_EQ(b.messages.vus[0].icone, Icone::critique);
}

TEST_P(LectureDesFiches, ExigeLesDeuxFichiersPuisLitLaFicheEtSonTexte) {
  Ajoute("Noce", "Du vin.");
  Demarre();
  EXPECT_EQ(LitFiche(*b.module, c.fichiers, premiere), "Du vin.");
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe " + Nom(c.fiches), "existe " + Nom(c.textes),
                          "lit " + EcritFiche(c, premiere).substr(std::string("écrit ").size()),
                          "longueur " + Nom(c.textes), "lit " + Nom(c.textes) + " 8+7"));
  EXPECT_EQ(Rogne(courante().titre.brut()), "Noce");
}

TEST_P(LectureDesFiches, UneFicheSansTexteEstVideEtDemandeQuandMemeLaReserve) {
  Ajoute("Nue");
  Demarre();
  EXPECT_EQ(LitFiche(*b.module, c.fichiers, premiere), "");
  EXPECT_THAT(b.disque.journal(), Contains("existe " + Nom(c.textes)));
  EXPECT_THAT(b.disque.journal(), Not(Contains(HasSubstr("lit " + Nom(c.textes)))));
  b.dossier.Supprime(Nom(c.textes));
  EXPECT_THROW(static_cast<void>(LitFiche(*b.module, c.fichiers, premiere)), ErreurExecution);
}

TEST_P(LectureDesFiches, UnePositionSousUnEstUneAbsenceDeTexte) {
  Ajoute("Noce", "Du vin.");
  Demarre();
  PoseFiche(premiere, -3, 7);
  EXPECT_EQ(LitFiche(*b.module, c.fichiers, premiere), "");
}

TEST_P(LectureDesFiches, UnTexteSeLitJusquATrenteMilleOctets) {
  const std::string texte = std::string(29999, 'x') + "yz";
  Ajoute("Longue", texte);
  Demarre();
  EXPECT_EQ(LitFiche(*b.module, c.fichiers, premiere), texte.substr(0, 30000));
}

TEST_P(LectureDesFiches, UneLongueurNegativeEstUnePanne) {
  Ajoute("Noce", "Du vin.");
  Demarre();
  PoseFiche(premiere, 9, -1);
  EXPECT_THROW(static_cast<void>(LitFiche(*b.module, c.fichiers, premiere)), ErreurExecution);
}

TEST_P(LectureDesFiches, UneLongueurAuDelaDeLaReserveDonneCeQuElleTient) {
  Ajoute("Noce", "Du vin.");
  Demarre();
  PoseFiche(premiere, 12, 500);
  EXPECT_EQ(LitFiche(*b.module, c.fichiers, premiere), "vin.");
}

TEST_P(LectureDesFiches, LesFichesDeLaFabriqueSontProtegeesEtPasLaSuivante) {
  Demarre();
  EXPECT_TRUE(EstProtegee(c.fichiers, 2));
  EXPECT_TRUE(EstProtegee(c.fichiers, c.dernierProtege));
  EXPECT_FALSE(EstProtegee(c.fichiers, c.dernierProtege + 1));
}

}  // namespace
}  // namespace gastrelle::essai
