// The walk through the whole program, and every byte that it leaves.

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <QDate>
#include <gmock/gmock.h>

#include "data/Texte1252.h"
#include "promenade/PromenadeReelle.h"

namespace gastrelle::essai {
namespace {

using testing::AllOf;
using testing::AnyOfArray;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using testing::UnorderedElementsAre;

constexpr int patience = 60'000;  // milliseconds

// As they lie in the files, byte by byte.
const std::string texteAjoute =
    "Pour 4 personnes \x96 pr\xE9paration\xA0: 10 minutes\r\n\r\n"
    "6 \x9Cufs bien frais\r\n"
    "25 cl de cr\xE8me (2,50\xA0\x80 le pot)\r\n"
    "sel, poivre \xAB\xA0"
    "du moulin\xA0\xBB\r\n\r\n"
    "Battez les \x9Cufs \xE0 la fourchette\x85";
const std::string texteChange = texteAjoute +
                                "\r\nParsemez de ciboulette cisel\xE9"
                                "e.\r\nServez aussit\xF4t\xA0!";
const std::string texteParti = "Un essai.";

/// How many records a file holds, the header included.
template <class T>
std::size_t Fiches(const DossierEssai& dossier, const char* nom) {
  return dossier.Lit(nom).size() / longueurEnregistrement<T>;
}

template <class T>
std::string NomDe(const T& fiche) {
  return std::string(Rogne((fiche.*T::champNom).brut()));
}

/// What a file of the folder holds behind what the factory gave, which is as it was.
std::string Ajoute(const DossierEssai& dossier, const std::string& nom) {
  const std::string usine = dossier.Lit(nom + ".stp");
  const std::string octets = dossier.Lit(nom + ".DAT");
  EXPECT_EQ(octets.substr(0, usine.size()), usine) << nom;
  return octets.substr(std::min(usine.size(), octets.size()));
}

/// What a pool holds at a place that is counted from 1.
std::string EnReserve(const DossierEssai& dossier, const char* nom, std::int32_t position,
                      std::int32_t longueur) {
  return dossier.Lit(nom).substr(static_cast<std::size_t>(position) - 1,
                                 static_cast<std::size_t>(longueur));
}

int JourDAujourdhui() {
  return static_cast<int>(QDate(1899, 12, 30).daysTo(QDate::currentDate()));
}

class PromenadeReelle : public testing::Test {
 protected:
  void Promene() {
    jours = {JourDAujourdhui()};
    const Issue issue = promene.Promene(patience);
    jours.push_back(JourDAujourdhui());
    ASSERT_EQ(issue.statut, 0) << issue.dit;
  }

  void VerifieJournal() const {
    const QStringList journal = promene.Journal();
    const qsizetype etapes = journal.value(0).section(u' ', 0, 0).toInt();
    EXPECT_GT(etapes, 200);
    ASSERT_EQ(journal.size(), etapes + 2) << journal.join(u'\n').toStdString();
    EXPECT_TRUE(journal[etapes].startsWith(QStringLiteral("%1/%1 ").arg(etapes)));
    EXPECT_EQ(journal.back(), "fin");
  }

  void VerifieRecettes() const {
    const std::size_t nombre = Fiches<RecRecette>(dossier, "GLR2.DAT");
    ASSERT_EQ(nombre, Fiches<RecRecette>(dossier, "GLR2.stp") + 2);
    const auto entete = Enregistrement<RecRecette>(dossier, "GLR2.DAT", 1);
    EXPECT_EQ(entete.actif, Enregistrement<RecRecette>(dossier, "GLR2.stp", 1).actif + 1);
    EXPECT_THAT(entete.idFamille, AnyOfArray(jours));

    const auto gardee = Enregistrement<RecRecette>(dossier, "GLR2.DAT", nombre - 1);
    EXPECT_EQ(gardee.actif, vivant);
    EXPECT_EQ(NomDe(gardee), "\x8Cufs brouill\xE9s \xE0 la cr\xE8me et \xE0 la ciboulette");
    EXPECT_EQ(NomDe(Enregistrement<RecFamille>(dossier, "GLR1.DAT",
                                               static_cast<std::size_t>(gardee.idFamille))),
              "\x8Cufs");
    EXPECT_EQ(EnReserve(dossier, "GLR3.DAT", gardee.posTexte, gardee.lgTexte), texteChange);
    EXPECT_EQ(EnReserve(dossier, "GLR4.DAT", gardee.posImage, gardee.lgImage), "/asperges.jpg");

    const auto partie = Enregistrement<RecRecette>(dossier, "GLR2.DAT", nombre);
    EXPECT_EQ(partie.actif, supprime);
    EXPECT_EQ(NomDe(partie), "\xC0 oublier aussit\xF4t");
    EXPECT_EQ(EnReserve(dossier, "GLR3.DAT", partie.posTexte, partie.lgTexte), texteParti);
    EXPECT_EQ(partie.posImage, 0);
  }

  /// Beside what the walk typed the files are as they came.
  void VerifieReserves() const {
    EXPECT_EQ(Ajoute(dossier, "GLR3"), texteAjoute + texteChange + texteParti);
    EXPECT_EQ(Ajoute(dossier, "GLR4"), "/asperges.jpg/asperges.jpg");
    EXPECT_EQ(Ajoute(dossier, "GLV3"), "Casier du haut, \xE0 boire avant No\xEBl.");
    for (const char* intact : {"GLF1", "GLF2", "GLM1", "GLM2", "GLV1", "GLMV", "GLT1", "GLT2",
                               "GLFV1", "GLFV2", "GLFV3"}) {
      EXPECT_EQ(Ajoute(dossier, intact), "") << intact;
    }
  }

  void VerifieFamille() const {
    const std::size_t nombre = Fiches<RecFamille>(dossier, "GLR1.DAT");
    EXPECT_EQ(nombre, Fiches<RecFamille>(dossier, "GLR1.stp") + 1);
    EXPECT_EQ(Enregistrement<RecFamille>(dossier, "GLR1.DAT", 1).actif,
              Enregistrement<RecFamille>(dossier, "GLR1.stp", 1).actif + 1);
    EXPECT_EQ(NomDe(Enregistrement<RecFamille>(dossier, "GLR1.DAT", nombre)),
              "Go\xFBters d'\xE9t\xE9");
  }

  void VerifieCave() const {
    constexpr std::size_t pas = longueurEnregistrement<RecVin>;
    const std::string usine = dossier.Lit("GLV2.stp");
    const std::string octets = dossier.Lit("GLV2.DAT");
    ASSERT_EQ(octets.size(), usine.size());
    std::vector<std::string> changes;
    for (std::size_t place = 0; place < octets.size(); place += pas) {
      if (octets.compare(place, pas, usine, place, pas) != 0) {
        RecVin vin;
        Decode(vin, octets.data() + place);
        changes.push_back(NomDe(vin) + ' ' + std::to_string(vin.nbRouge) + ' ' +
                          std::to_string(vin.nbRose));
      }
    }
    EXPECT_THAT(changes, ElementsAre("Chinon 6 12"));
  }

  void VerifieTextes() const {
    EXPECT_EQ(dossier.Lit("MesNotes.txt"),
              "Rendre le moule \xE0 \xC9lise.\r\n"
              "Acheter du piment d'Espelette (8\xA0\x80).\r\n");
    EXPECT_EQ(dossier.Lit("GLMCN.DAT"), "GLMCN.DAT2 kg de pommes de terre\r\nciboulette12 \x9Cufs");
    EXPECT_EQ(dossier.Lit("GLPREF.DAT"), Octets(RecPreferences{}));
    EXPECT_THAT(dossier.Lit("recette.txt"),
                AllOf(StartsWith("Gastrelle 2005 (Edition du "), HasSubstr(texteChange)));
  }

  void VerifieSauvegarde() const {
    std::vector<std::string> sauves;
    for (const auto& entree : std::filesystem::directory_iterator(dossier.chemin() / "SAUVE")) {
      sauves.push_back(entree.path().filename().string());
      EXPECT_EQ(dossier.Lit("SAUVE/" + sauves.back()), dossier.Lit(sauves.back()));
    }
    EXPECT_THAT(sauves, UnorderedElementsAre("GLR1.DAT", "GLR2.DAT", "GLR3.DAT", "GLR4.DAT"));
  }

  DossierPromene promene{"Ma cuisine d'été, à Noël "};
  const DossierEssai& dossier = promene.dossier;
  std::vector<int> jours;
};

TEST_F(PromenadeReelle, VaAuBoutEtLaisseCeQuElleATape) {
  Promene();
  VerifieJournal();
  VerifieRecettes();
  VerifieReserves();
  VerifieFamille();
  VerifieCave();
  VerifieTextes();
  VerifieSauvegarde();
}

TEST_F(PromenadeReelle, FinitDansDeuxDossiersAvecLesMemesOctets) {
  Promene();
  const DossierPromene autre("Une autre");
  ASSERT_EQ(autre.Promene(patience).statut, 0);
  const Issue issue = Compare(dossier, autre.dossier);
  EXPECT_EQ(issue.statut, 0) << issue.dit;
  EXPECT_THAT(issue.dit, EndsWith(" 0 écarts\n"));
  EXPECT_THAT(issue.dit, Not(HasSubstr("chemin du dossier")));
}

TEST_F(PromenadeReelle, AbandonneQuandUneEtapeNeVientPas) {
  dossier.Supprime("GLR3.stp");
  constexpr int vite = 500;  // milliseconds
  const Issue issue = promene.Promene(vite);
  EXPECT_EQ(issue.statut, 3);
  EXPECT_THAT(issue.dit, HasSubstr("ABANDON avant « le cadre et les recettes à l'écran »"));
  EXPECT_THAT(promene.Journal().back().toStdString(),
              AllOf(StartsWith("ABANDON"), HasSubstr("GLR3.stp non trouvé ou erreur disque.")));
}

}  // namespace
}  // namespace gastrelle::essai
