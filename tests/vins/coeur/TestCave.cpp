// The cellar in the wines' records: what is taken for a number of bottles, what is written, and
// what survives a failure at each write.

#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Pannes.h"
#include "vins/coeur/CoeurVins.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct TextePourNombre {
  std::string_view texte;
  int refus;
};

class NombreDeBouteilles : public testing::TestWithParam<TextePourNombre> {};

TEST_P(NombreDeBouteilles, SeRefuseAutantDeFois) {
  EXPECT_EQ(RefusDuNombre(GetParam().texte), GetParam().refus);
}

std::string NomDuTexte(const testing::TestParamInfo<TextePourNombre>& cas) {
  std::string nom = "t" + std::to_string(cas.index);
  for (const char c : cas.param.texte) {
    nom += (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') ? c : '_';
  }
  return nom;
}

INSTANTIATE_TEST_SUITE_P(Acceptes, NombreDeBouteilles,
                         testing::Values(TextePourNombre{"0", 0}, TextePourNombre{"1", 0},
                                         TextePourNombre{"32767", 0}, TextePourNombre{"00000", 0},
                                         TextePourNombre{"00012", 0}),
                         NomDuTexte);

INSTANTIATE_TEST_SUITE_P(TropGrands, NombreDeBouteilles,
                         testing::Values(TextePourNombre{"32768", 1}, TextePourNombre{"99999", 1}),
                         NomDuTexte);

// Numbers, but not of digits alone.
INSTANTIATE_TEST_SUITE_P(PasEntiers, NombreDeBouteilles,
                         testing::Values(TextePourNombre{"-5", 1}, TextePourNombre{"-9999", 1},
                                         TextePourNombre{"+1", 1}, TextePourNombre{"12,5", 1},
                                         TextePourNombre{"12.5", 1}, TextePourNombre{",5", 1},
                                         TextePourNombre{".5", 1}, TextePourNombre{"5.", 1},
                                         TextePourNombre{"1e4", 1}, TextePourNombre{"1e-9", 1},
                                         TextePourNombre{"-1e9", 1}),
                         NomDuTexte);

INSTANTIATE_TEST_SUITE_P(DeuxFois, NombreDeBouteilles,
                         testing::Values(TextePourNombre{"1e5", 2}, TextePourNombre{"4e4", 2},
                                         TextePourNombre{"4E4", 2}, TextePourNombre{"+4e4", 2},
                                         TextePourNombre{"9,9e9", 2}, TextePourNombre{"1e+5", 2}),
                         NomDuTexte);

INSTANTIATE_TEST_SUITE_P(
    PasDesNombres, NombreDeBouteilles,
    testing::Values(TextePourNombre{"abc", 1}, TextePourNombre{"12a", 1}, TextePourNombre{"a12", 1},
                    TextePourNombre{".", 1}, TextePourNombre{",", 1}, TextePourNombre{"-", 1},
                    TextePourNombre{"+", 1}, TextePourNombre{"-.", 1}, TextePourNombre{"+-5", 1},
                    TextePourNombre{"--5", 1}, TextePourNombre{"++5", 1}, TextePourNombre{"5-", 1},
                    TextePourNombre{"1,2,3", 1}, TextePourNombre{"1.2,3", 1},
                    TextePourNombre{"9 999", 1}, TextePourNombre{"e5", 1}, TextePourNombre{"1e", 1},
                    TextePourNombre{"4e4,", 1}, TextePourNombre{"99e", 1},
                    TextePourNombre{"1e999", 1}, TextePourNombre{"&H10", 1},
                    TextePourNombre{"0xFFF", 1}, TextePourNombre{"inf", 1},
                    TextePourNombre{"-inf", 1}, TextePourNombre{"nan", 1},
                    TextePourNombre{"\xA0", 1},
                    TextePourNombre{"\xA0"
                                    "12",
                                    1},
                    TextePourNombre{"\xB2", 1}, TextePourNombre{std::string_view("\0", 1), 1}),
    NomDuTexte);

TEST(EstEntier, NeVeutQueDesChiffres) {
  for (const std::string_view oui : {"", "0", "12", "99999", "123456789012345678901234567890"}) {
    EXPECT_TRUE(EstEntier(oui)) << oui;
  }
  for (const std::string_view non :
       {" ", "-5", "+1", "1,5", "1.5", "1e5", "/", ":", "12\xA0", "\xB9"}) {
    EXPECT_FALSE(EstEntier(non)) << non;
  }
}

TEST(NombreSaisi, SeLitEnTete) {
  EXPECT_EQ(NombreSaisi("0"), 0);
  EXPECT_EQ(NombreSaisi("32767"), 32767);
  EXPECT_EQ(NombreSaisi("00012"), 12);
  EXPECT_EQ(NombreSaisi("12a"), 12);
  EXPECT_EQ(NombreSaisi("12,9"), 12);
  EXPECT_EQ(NombreSaisi("-5"), -5);
  EXPECT_EQ(NombreSaisi("abc"), 0);
  EXPECT_EQ(NombreSaisi(""), 0);
}

TEST(NombreSaisi, EchoueHorsDeSonChamp) {
  for (const std::string_view texte : {"32768", "99999", "-32769", "99999999999999999999999"}) {
    EXPECT_EQ(PanneDe([&] { static_cast<void>(NombreSaisi(texte)); }), Panne::depassement) << texte;
  }
}

TEST(CouleursVin, OntTouteLeurLigneDeVingtEtUnCaracteresDansLOrdreDeLaFiche) {
  std::vector<std::string> titres;
  for (const CouleurVin& couleur : couleursVin) {
    titres.push_back(VersUtf8(couleur.titre));
    std::string ligne = ".. ";
    ligne += couleur.titre;
    EXPECT_TRUE(couleur.ligne.starts_with(ligne + " ")) << titres.back();
    EXPECT_EQ(couleur.ligneDeToutes, Majuscules(couleur.ligne)) << titres.back();
    EXPECT_EQ(couleur.ligne.size(), 21U) << titres.back();
  }
  EXPECT_THAT(titres, ElementsAre("Blanc", "Rouge", "Rosé", "Champagne", "Vin doux naturel",
                                  "Jaune", "Paille", "Mousseux", "Gris"));
}

class EcritureDeCave : public CoeurVins {
 protected:
  static constexpr Bouteilles neuf{1, 2, 3, 4, 5, 6, 7, 8, 9};

  /// The cellar of "Abymes", each of its writes failing in turn.
  template <class Verifie>
  static void EcritEnEchouant(std::size_t ecritures, std::optional<std::string_view> notes,
                              Verifie verifie) {
    EchoueAChaqueEcriture(
        ecritures, GarnitAvecAbymes,
        [notes](Bibliotheque& avec) {
          LitVin(*avec.module, 565);
          EcritCave(*avec.module, 565, neuf, notes);
        },
        verifie);
  }

  /// "Abymes" with these bottles and this reference of its note on the cellar.
  static RecVin Attendu(const Bouteilles& bouteilles, std::int32_t posNotesCave,
                        std::int32_t lgNotesCave) {
    RecVin attendu = VinEnCave("Abymes", bouteilles, 29);
    attendu.actif = -1;
    attendu.posTexte = 9;
    attendu.lgTexte = 10;
    attendu.posNotesCave = posNotesCave;
    attendu.lgNotesCave = lgNotesCave;
    return attendu;
  }

  /// A new wine on display: a length of 8 came with it, and no position.
  void DemarreSurUnNouveau() {
    DemarreSurAbymes();
    AjouteVin(*b.module, {"Nu", 2, {}});
    LitVin(*b.module, 566);
    b.disque.OublieJournal();
  }
};

TEST_F(EcritureDeCave, MontreLaFicheDeTravailSansRienLire) {
  DemarreSurAbymes();
  EXPECT_THAT(BouteillesCourantes(*b.module), ElementsAre(6, 2, 0, 0, 0, 0, 0, 0, 0));
  b.module->bufVin.courant() = VinEnCave("Autre", neuf);
  EXPECT_EQ(BouteillesCourantes(*b.module), neuf);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(EcritureDeCave, PoseLesNeufNombresSansToucherAuxNotes) {
  DemarreSurAbymes();
  EcritCave(*b.module, 565, neuf, std::nullopt);
  EXPECT_THAT(b.disque.journal(), ElementsAre("écrit GLV2.DAT 58656+104"));
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(Attendu(neuf, 19, 8)));
  const std::string fiche = b.dossier.Lit("GLV2.DAT").substr(58656 + 70, 18);
  EXPECT_EQ(fiche, std::string("\1\0\2\0\3\0\4\0\5\0\6\0\7\0\10\0\11\0", 18));
  EXPECT_EQ(FicheVin(b, 1).actif, 564);
}

TEST_F(EcritureDeCave, DemandeSesDeuxFichiersDansLOrdre) {
  DemarreSurAbymes();
  ExigePourCave(*b.module);
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV2.DAT", "existe GLV3.DAT"));
  b.dossier.Supprime("GLV3.DAT");
  EXPECT_THROW(ExigePourCave(*b.module), ErreurExecution);
  b.dossier.Supprime("GLV2.DAT");
  EXPECT_THROW(ExigePourCave(*b.module), ErreurExecution);
  EXPECT_THAT(b.messages.vus, ElementsAre(Disparu("GLV3.DAT"), Disparu("GLV2.DAT")));
}

TEST_F(EcritureDeCave, UneNoteDeMemeLongueurSEcritASaPlacePuisLaFiche) {
  DemarreSurAbymes();
  EcritCave(*b.module, 565, {}, "En bas !");
  EXPECT_THAT(b.disque.journal(), ElementsAre("écrit GLV3.DAT 18+8", "écrit GLV2.DAT 58656+104"));
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsEn bas !");
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(Attendu({}, 19, 8)));
}

TEST_F(EcritureDeCave, UneNotePlusCourteLaisseSaQueue) {
  DemarreSurAbymes();
  EcritCave(*b.module, 565, {}, "Bas");
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsBashaut.");
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(Attendu({}, 19, 3)));
}

TEST_F(EcritureDeCave, UneNotePlusLonguePasseALaFin) {
  DemarreSurAbymes();
  EcritCave(*b.module, 565, {}, "Tout en bas");
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("longueur GLV3.DAT", "écrit GLV3.DAT 26+11", "écrit GLV2.DAT 58656+104"));
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsEn haut.Tout en bas");
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(Attendu({}, 27, 11)));
}

TEST_F(EcritureDeCave, UneNoteVidePerdSaReferenceEtLaSuivantePasseALaFin) {
  DemarreSurAbymes();
  EcritCave(*b.module, 565, {}, "");
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(Attendu({}, 0, 0)));
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsEn haut.");
  EcritCave(*b.module, 565, {}, "x");
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(Attendu({}, 27, 1)));
}

// The record on display is whatever was read last: it goes over the wine that is chosen.
TEST_F(EcritureDeCave, EcritLaFicheDeTravailAuNumeroDonneQuelleQuElleSoit) {
  DemarreSurAbymes();
  LitVin(*b.module, 2);
  EcritCave(*b.module, 565, neuf, std::nullopt);
  EXPECT_EQ(NomVin(b, 565), "Vin 002");
  EXPECT_EQ(FicheVin(b, 565).idRegion, 2);
  EXPECT_EQ(NomVin(b, 2), "Vin 002");
  EXPECT_EQ(FicheVin(b, 2).nbGris, 0);
}

TEST_F(EcritureDeCave, LaPremiereNoteDUnNouveauVinPlusLongueQueSonHeritagePasseALaFin) {
  DemarreSurUnNouveau();
  EcritCave(*b.module, 566, neuf, "Neuf lgs.");
  EXPECT_EQ(FicheVin(b, 566).posNotesCave, 27);
  EXPECT_EQ(FicheVin(b, 566).lgNotesCave, 9);
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsEn haut.Neuf lgs.");
}

// It would go to position 0, which no file has.
TEST_F(EcritureDeCave, LaPremiereNoteDUnNouveauVinQuiTientDansSonHeritageEstFatale) {
  DemarreSurUnNouveau();
  const std::string fiche = Octets(FicheVin(b, 566));
  for (const std::string_view notes : {"x", "Huit lg."}) {
    RelitVin(*b.module, 566);
    EXPECT_EQ(PanneDe([&] { EcritCave(*b.module, 566, neuf, notes); }),
              Panne::numeroEnregistrement);
  }
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(Octets(FicheVin(b, 566)), fiche);
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsEn haut.");
}

TEST_F(EcritureDeCave, SansNoteUnNouveauVinGardeSonHeritageOuLePerdEnLaVidant) {
  DemarreSurUnNouveau();
  EcritCave(*b.module, 566, neuf, std::nullopt);
  EXPECT_EQ(FicheVin(b, 566).posNotesCave, 0);
  EXPECT_EQ(FicheVin(b, 566).lgNotesCave, 8);
  EcritCave(*b.module, 566, neuf, "");
  EXPECT_EQ(FicheVin(b, 566).lgNotesCave, 0);
  EcritCave(*b.module, 566, neuf, "x");
  EXPECT_EQ(FicheVin(b, 566).posNotesCave, 27);
}

TEST_F(EcritureDeCave, UneNotePlusLongueQuiEchoueLaisseLAncienne) {
  EcritEnEchouant(2, "Tout en bas.", [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
    const bool moitie = maniere == Maniere::moitieEcrite;
    EXPECT_EQ(avec.dossier.Lit("GLV3.DAT").substr(18, 8), "En haut.");
    EXPECT_EQ(avec.dossier.Lit("GLV3.DAT").size(), n > 1 ? 38U : moitie ? 32U : 26U);
    EXPECT_EQ(FicheVin(avec, 565).posNotesCave, 19);
    EXPECT_EQ(FicheVin(avec, 565).lgNotesCave, 8);
    EXPECT_EQ(FicheVin(avec, 565).nbGris, 0);
  });
}

TEST_F(EcritureDeCave, UneNotePlusCourteQuiEchoueLaisseLaFiche) {
  EcritEnEchouant(2, "Deux", [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
    const bool moitie = maniere == Maniere::moitieEcrite;
    EXPECT_EQ(avec.dossier.Lit("GLV3.DAT"), n == 2   ? "GLV3.DATDix octetsDeuxaut."
                                            : moitie ? "GLV3.DATDix octetsDe haut."
                                                     : "GLV3.DATDix octetsEn haut.");
    EXPECT_EQ(FicheVin(avec, 565).posNotesCave, 19);
    EXPECT_EQ(FicheVin(avec, 565).lgNotesCave, 8);
    EXPECT_EQ(FicheVin(avec, 565).nbGris, 0);
  });
}

TEST_F(EcritureDeCave, DesBouteillesQuiEchouentNePerdentRienDeLaFiche) {
  for (const std::optional<std::string_view> notes :
       {std::optional<std::string_view>(), std::optional<std::string_view>("")}) {
    EcritEnEchouant(1, notes, [](const Bibliotheque& avec, std::size_t /*n*/, Maniere /*maniere*/) {
      EXPECT_EQ(Octets(FicheVin(avec, 565)), Octets(Attendu({6, 2}, 19, 8)));
      EXPECT_EQ(avec.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsEn haut.");
    });
  }
}

}  // namespace
}  // namespace gastrelle::essai
