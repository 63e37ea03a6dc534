// Changing menus and tips: the bytes on file after each operation, the order of the writes, and
// what survives a failure at each of them.

#include <gmock/gmock.h>

#include "doublures/Pannes.h"
#include "fiches/FichesEssai.h"

namespace gastrelle::essai {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ChangementDesFiches : public testing::TestWithParam<CatalogueEssai> {
 protected:
  ChangementDesFiches() { b.GarnitFiches(c.fiches); }

  void Demarre() { b.Demarre(); }
  /// Starts with "Noce" on display, the first record that can be deleted; its text is the ten bytes
  /// behind the signature.
  void DemarreSurNoce() {
    b.AjouteFiche(c.fiches, "Noce", "Dix octets");
    Demarre();
    Affiche(premiere);
  }
  void Affiche(std::int32_t numero) {
    static_cast<void>(LitFiche(*b.module, c.fichiers, numero));
    b.disque.OublieJournal();
  }
  RecFiche Lue(std::int32_t numero) const { return Fiche(b, c, numero); }
  std::string Reserve(std::string_view textes) const { return Nom(c.textes) + std::string(textes); }
  static RecFiche Attendue(std::string_view titre, std::int32_t position, std::int32_t longueur) {
    RecFiche fiche;
    fiche.actif = -1;
    fiche.titre = titre;
    fiche.posTexte = position;
    fiche.lgTexte = longueur;
    return fiche;
  }

  /// A library with "Noce" and its text; its change into "Bal"; the record when a write of it has
  /// failed: its title is new only where half of the record was written, the rest is as it was.
  void GarnitAvecNoce(Bibliotheque& avec) const {
    avec.GarnitFiches(c.fiches);
    avec.AjouteFiche(c.fiches, "Noce", "Dix octets");
  }
  void ChangeNoce(Bibliotheque& avec, std::string_view texte) const {
    static_cast<void>(LitFiche(*avec.module, c.fichiers, premiere));
    ChangeFiche(*avec.module, c.fichiers, premiere, "Bal", texte);
  }
  void AttendAncienneFiche(const Bibliotheque& avec, std::size_t n, Maniere maniere) const {
    EXPECT_EQ(Fiche(avec, c, premiere).posTexte, 9);
    EXPECT_EQ(Fiche(avec, c, premiere).lgTexte, 10);
    EXPECT_EQ(TitreFiche(avec, c, premiere),
              n == 2 && maniere == Maniere::moitieEcrite ? "Bal" : "Noce");
    EXPECT_EQ(Compte(avec, c), c.dernierProtege);
  }

  const CatalogueEssai& c = GetParam();
  const std::int32_t premiere = c.dernierProtege + 1;
  Bibliotheque b;
};

INSTANTIATE_TEST_SUITE_P(Coeur, ChangementDesFiches, testing::Values(lesMenus, lesTrucs),
                         testing::PrintToStringParamName());

TEST_P(ChangementDesFiches, AjouteReserveDabordPuisFichePuisEntete) {
  Demarre();
  EXPECT_EQ(AjouteFiche(*b.module, c.fichiers, "Noce", "Du vin."), premiere);
  EXPECT_THAT(b.disque.changements(),
              ElementsAre(EcritTexte(c, 8, 7), EcritFiche(c, premiere), EcritFiche(c, 1)));
  EXPECT_EQ(Octets(Lue(premiere)), Octets(Attendue("Noce", 9, 7)));
  EXPECT_EQ(b.dossier.Lit(Nom(c.fiches)).size(), static_cast<std::size_t>(premiere) * 138U);
  EXPECT_EQ(Textes(b, c), Reserve("Du vin."));
}

TEST_P(ChangementDesFiches, UnAjoutCompteLaFicheEtGardeLaSignature) {
  Demarre();
  AjouteFiche(*b.module, c.fichiers, "Noce", "Du vin.");
  EXPECT_EQ(NombreFiches(*b.module, c.fichiers), c.dernierProtege);
  EXPECT_EQ(Compte(b, c), c.dernierProtege);
  EXPECT_EQ(TitreFiche(b, c, 1), Nom(c.fiches));
}

TEST_P(ChangementDesFiches, ExigeSesFichiersAvantDeRienEcrire) {
  Demarre();
  AjouteFiche(*b.module, c.fichiers, "Noce", "Du vin.");
  EXPECT_EQ(b.disque.journal()[0], "existe " + Nom(c.fiches));
  EXPECT_EQ(b.disque.journal()[1], "existe " + Nom(c.textes));
}

TEST_P(ChangementDesFiches, UnAjoutSansTexteNeToucheNiNeDemandeLaReserve) {
  DemarreSurNoce();
  b.dossier.Supprime(Nom(c.textes));
  EXPECT_EQ(AjouteFiche(*b.module, c.fichiers, "Nue", {}), premiere + 1);
  EXPECT_THAT(b.disque.journal(), Each(Not(HasSubstr(Nom(c.textes)))));
  EXPECT_EQ(Octets(Lue(premiere + 1)), Octets(Attendue("Nue", 0, 0)));
}

TEST_P(ChangementDesFiches, UnAjoutAvecTexteSansReserveEchoueSansRienEcrire) {
  Demarre();
  b.dossier.Supprime(Nom(c.textes));
  EXPECT_THROW(AjouteFiche(*b.module, c.fichiers, "Noce", "Du vin."), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(b.messages.vus.size(), 1U);
}

TEST_P(ChangementDesFiches, LeMemeTitreSAjouteDeuxFois) {
  Demarre();
  EXPECT_EQ(AjouteFiche(*b.module, c.fichiers, "Noce", {}), premiere);
  EXPECT_EQ(AjouteFiche(*b.module, c.fichiers, "Noce", {}), premiere + 1);
  EXPECT_EQ(TitreFiche(b, c, premiere), TitreFiche(b, c, premiere + 1));
}

TEST_P(ChangementDesFiches, UneFicheNouvelleVaALaFinMemeApresUneSuppression) {
  DemarreSurNoce();
  SupprimeFiche(*b.module, c.fichiers, premiere);
  EXPECT_EQ(AjouteFiche(*b.module, c.fichiers, "Fiancailles", {}), premiere + 1);
  EXPECT_EQ(TitreFiche(b, c, premiere), "Noce");
}

TEST_P(ChangementDesFiches, UnTexteDeMemeLongueurSeRemplaceEnPlace) {
  DemarreSurNoce();
  ChangeFiche(*b.module, c.fichiers, premiere, "Noces", "dIX OCTETS");
  EXPECT_THAT(b.disque.changements(), ElementsAre(EcritTexte(c, 8, 10), EcritFiche(c, premiere)));
  EXPECT_EQ(Octets(Lue(premiere)), Octets(Attendue("Noces", 9, 10)));
  EXPECT_EQ(Textes(b, c), Reserve("dIX OCTETS"));
}

TEST_P(ChangementDesFiches, UnTextePlusCourtGardeSaPositionEtLaisseSaQueue) {
  DemarreSurNoce();
  ChangeFiche(*b.module, c.fichiers, premiere, "Noce", "Bref");
  EXPECT_EQ(Octets(Lue(premiere)), Octets(Attendue("Noce", 9, 4)));
  EXPECT_EQ(Textes(b, c), Reserve("Brefoctets"));
}

TEST_P(ChangementDesFiches, UnTexteDUnCaractereDePlusPasseALaFin) {
  DemarreSurNoce();
  ChangeFiche(*b.module, c.fichiers, premiere, "Noce", "Onze octets");
  EXPECT_EQ(Octets(Lue(premiere)), Octets(Attendue("Noce", 19, 11)));
  EXPECT_EQ(Textes(b, c), Reserve("Dix octetsOnze octets"));
}

TEST_P(ChangementDesFiches, UnTexteVidePerdSaReferenceSansToucherLaReserve) {
  DemarreSurNoce();
  b.disque.EchoueSur("existe " + Nom(c.textes), Panne::permissionRefusee);
  ChangeFiche(*b.module, c.fichiers, premiere, "Noce", {});
  EXPECT_THAT(b.disque.changements(), ElementsAre(EcritFiche(c, premiere)));
  EXPECT_EQ(Octets(Lue(premiere)), Octets(Attendue("Noce", 0, 0)));
  EXPECT_EQ(Textes(b, c), Reserve("Dix octets"));
}

TEST_P(ChangementDesFiches, UnTexteRenduApresAvoirEteVidePasseALaFin) {
  DemarreSurNoce();
  ChangeFiche(*b.module, c.fichiers, premiere, "Noce", {});
  ChangeFiche(*b.module, c.fichiers, premiere, "Noce", "x");
  EXPECT_EQ(Octets(Lue(premiere)), Octets(Attendue("Noce", 19, 1)));
}

TEST_P(ChangementDesFiches, LAncienneReferenceEstCelleDeLaFicheDeTravail) {
  DemarreSurNoce();
  (*b.module.*c.fichiers.tampon).courant().lgTexte = 3;
  ChangeFiche(*b.module, c.fichiers, premiere, "Noce", "Bref");
  EXPECT_EQ(Lue(premiere).posTexte, 19);
  EXPECT_THAT(b.disque.journal(), Not(Contains(HasSubstr("lit " + Nom(c.fiches)))));
}

TEST_P(ChangementDesFiches, UneModificationNeChangePasLeCompte) {
  DemarreSurNoce();
  ChangeFiche(*b.module, c.fichiers, premiere, "Noces", "Bref");
  EXPECT_EQ(Compte(b, c), c.dernierProtege);
}

TEST_P(ChangementDesFiches, UneFicheProtegeeSeModifie) {
  Demarre();
  Affiche(c.dernierProtege);
  ChangeFiche(*b.module, c.fichiers, c.dernierProtege, "Autre", "Du vin.");
  EXPECT_EQ(Octets(Lue(c.dernierProtege)), Octets(Attendue("Autre", 9, 7)));
}

TEST_P(ChangementDesFiches, UneModificationRendVivanteUneFicheEteinte) {
  DemarreSurNoce();
  SupprimeFiche(*b.module, c.fichiers, premiere);
  ChangeFiche(*b.module, c.fichiers, premiere, "Noce", "Bref");
  EXPECT_EQ(Lue(premiere).actif, -1);
}

TEST_P(ChangementDesFiches, ModifierUneFicheSansSonFichierEchoueSansRienEcrire) {
  DemarreSurNoce();
  b.dossier.Supprime(Nom(c.fiches));
  EXPECT_THROW(ChangeFiche(*b.module, c.fichiers, premiere, "Noce", "Bref"), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_P(ChangementDesFiches, SupprimeEnNEffacantQueLeDrapeau) {
  DemarreSurNoce();
  RecFiche attendue = Lue(premiere);
  attendue.actif = 0;
  SupprimeFiche(*b.module, c.fichiers, premiere);
  EXPECT_THAT(b.disque.changements(), ElementsAre(EcritFiche(c, premiere), EcritFiche(c, 1)));
  EXPECT_EQ(Octets(Lue(premiere)), Octets(attendue));
  EXPECT_EQ(Compte(b, c), c.dernierProtege - 1);
  EXPECT_EQ(Textes(b, c), Reserve("Dix octets"));
}

TEST_P(ChangementDesFiches, SupprimerRelitLaFicheEtNeDemandePasLaReserve) {
  DemarreSurNoce();
  Affiche(2);
  b.dossier.Supprime(Nom(c.textes));
  SupprimeFiche(*b.module, c.fichiers, premiere);
  EXPECT_EQ(TitreFiche(b, c, premiere), "Noce");
  EXPECT_EQ(b.disque.journal().front(), "existe " + Nom(c.fiches));
}

TEST_P(ChangementDesFiches, ToutesLesAutresSupprimeesLeFichierGardeSaLongueur) {
  DemarreSurNoce();
  const std::int32_t seconde = AjouteFiche(*b.module, c.fichiers, "Fete", {});
  const std::size_t longueur = b.dossier.Lit(Nom(c.fiches)).size();
  SupprimeFiche(*b.module, c.fichiers, premiere);
  SupprimeFiche(*b.module, c.fichiers, seconde);
  EXPECT_EQ(Compte(b, c), c.dernierProtege - 1);
  EXPECT_EQ(b.dossier.Lit(Nom(c.fiches)).size(), longueur);
}

TEST_P(ChangementDesFiches, LeCompteQuiNeTientPlusEstUnePanne) {
  Demarre();
  PoseCompte(b, Nom(c.fiches), 32767);
  (*b.module.*c.fichiers.tampon).LitEntete();
  EXPECT_THROW(AjouteFiche(*b.module, c.fichiers, "Trop", {}), ErreurExecution);
}

// What stands on file when a write fails: a text without a reference, a record without its count,
// never a reference to a text that isn't there.
TEST_P(ChangementDesFiches, UnAjoutQuiEchoueNeLaisseJamaisDeReferenceSansTexte) {
  EchoueAChaqueEcriture(
      3, [&](Bibliotheque& avec) { avec.GarnitFiches(c.fiches); },
      [&](Bibliotheque& avec) { AjouteFiche(*avec.module, c.fichiers, "Noce", "Du vin rouge"); },
      [&](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const bool moitie = maniere == Maniere::moitieEcrite;
        const std::size_t fiches = avec.dossier.Lit(Nom(c.fiches)).size();
        const auto avant = static_cast<std::size_t>(c.dernierProtege) * 138U;
        EXPECT_EQ(Textes(avec, c).size(), n > 1 ? 20U : moitie ? 14U : 8U);
        EXPECT_EQ(fiches - avant, n > 2 ? 138U : n == 2 && moitie ? 69U : 0U);
        if (!(n == 3 && moitie)) {
          EXPECT_EQ(Compte(avec, c), c.dernierProtege - 1);
        }
      });
}

TEST_P(ChangementDesFiches, UneModificationQuiEchoueLaisseLAncienneReference) {
  EchoueAChaqueEcriture(
      2, [&](Bibliotheque& avec) { GarnitAvecNoce(avec); },
      [&](Bibliotheque& avec) { ChangeNoce(avec, "Un texte bien plus long"); },
      [&](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        AttendAncienneFiche(avec, n, maniere);
        EXPECT_EQ(Textes(avec, c).substr(8, 10), "Dix octets");
      });
}

TEST_P(ChangementDesFiches, UneSuppressionQuiEchoueGardeCeQuiEstDejaEcrit) {
  EchoueAChaqueEcriture(
      2,
      [&](Bibliotheque& avec) {
        avec.GarnitFiches(c.fiches);
        avec.AjouteFiche(c.fiches, "Noce");
      },
      [&](Bibliotheque& avec) { SupprimeFiche(*avec.module, c.fichiers, premiere); },
      [&](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        if (maniere == Maniere::rienFait) {
          EXPECT_EQ(Fiche(avec, c, premiere).actif, n > 1 ? 0 : -1);
          EXPECT_EQ(Compte(avec, c), c.dernierProtege);
        }
        EXPECT_EQ(TitreFiche(avec, c, premiere), "Noce");
      });
}

TEST_P(ChangementDesFiches, UneModificationExigeSesFichiersPuisEcritSansRienRelire) {
  DemarreSurNoce();
  ChangeFiche(*b.module, c.fichiers, premiere, "Noces", "Bref");
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe " + Nom(c.fiches), "existe " + Nom(c.textes),
                                              EcritTexte(c, 8, 4), EcritFiche(c, premiere)));
}

TEST_P(ChangementDesFiches, LEnteteNeChangeQueDeCompte) {
  GarnitEntete<RecFiche>(b, NomFabrique(c.fiches));
  DemarreSurNoce();
  const std::string avant = Entete<RecFiche>(b, Nom(c.fiches));
  const auto vivantes = static_cast<std::int16_t>(c.dernierProtege);
  AjouteFiche(*b.module, c.fichiers, "Bal", "x");
  EXPECT_EQ(Entete<RecFiche>(b, Nom(c.fiches)),
            AvecCompte(avant, static_cast<std::int16_t>(vivantes + 1)));
  SupprimeFiche(*b.module, c.fichiers, premiere);
  EXPECT_EQ(Entete<RecFiche>(b, Nom(c.fiches)), AvecCompte(avant, vivantes));
}

TEST_P(ChangementDesFiches, UnTextePlusCourtQuiEchoueLaisseLaFiche) {
  EchoueAChaqueEcriture(
      2, [&](Bibliotheque& avec) { GarnitAvecNoce(avec); },
      [&](Bibliotheque& avec) { ChangeNoce(avec, "Bref"); },
      [&](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        AttendAncienneFiche(avec, n, maniere);
        const bool moitie = maniere == Maniere::moitieEcrite;
        EXPECT_EQ(Textes(avec, c).substr(8), n == 2   ? "Brefoctets"
                                             : moitie ? "Brx octets"
                                                      : "Dix octets");
      });
}

}  // namespace
}  // namespace gastrelle::essai
