// The start of the program: what it refuses and what it says, as tables.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Depart.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The message about `nom`, an end with status 1, and no frame.
void AttendRefus(const Bibliotheque& b, const Depart& depart, const MessageVu& message) {
  EXPECT_FALSE(depart.cadre);
  EXPECT_EQ(depart.fin, 1);
  EXPECT_THAT(b.messages.vus, ElementsAre(message));
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST(Refus, DUneSecondeInstanceNeToucheARien) {
  Bibliotheque b;
  const Depart depart = Essaie(b, true);
  AttendRefus(b, depart,
              {std::string("Cette application est déjà en cours"_1252), Icone::information,
               "Gastrelle 2005"});
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST(Refus, DUneDisquetteNeToucheARien) {
  for (const char* dossier : {"A:\\", "B:\\GASTRELLE", "a:\\gastrelle"}) {
    Bibliotheque b;
    b.module->chemins = Chemins(Convention::windows, dossier);
    const Depart depart = Essaie(b);
    AttendRefus(b, depart,
                {std::string("Gastrelle 2005 ne fonctionne pas à partir d'une disquette."_1252),
                 Icone::information, "Gastrelle 2005"});
    EXPECT_EQ(b.messages.bips, 0);
    EXPECT_THAT(b.disque.journal(), IsEmpty());
  }
}

TEST(Refus, NeVisePasLesAutresLecteursNiLeReseau) {
  for (const char* dossier : {"C:\\GASTRELLE", "Z:\\", "\\\\SERVEUR\\GASTRELLE"}) {
    Bibliotheque b;
    b.module->chemins = Chemins(Convention::windows, dossier);
    EXPECT_TRUE(Essaie(b).cadre) << dossier;
  }
}

TEST(Refus, DitLeFichierParSonCheminDansLeDossier) {
  Bibliotheque b;
  b.module->chemins = Chemins(Convention::windows, "c:\\Gastrelle");
  b.dossier.Ecrit("GLM2.DAT", "");
  EXPECT_EQ(Essaie(b).fin, 1);
  EXPECT_EQ(b.messages.vus.at(0).texte,
            "Fichier\r\nC:\\GASTRELLE\\GLM2.DAT\r\n"
            "non trouvé ou incompatible ou erreur disque."_1252);
}

/// A fault of one file, as a row of a table.
struct Faute {
  const char* nom;
  std::string (*abime)(std::string octets, Donnees fichier);
};

std::string AvecCompte(std::string octets, int compte) {
  octets[0] = static_cast<char>(compte & 0xFF);
  octets[1] = static_cast<char>((compte >> 8) & 0xFF);
  return octets;
}

std::size_t PlaceSignature(const std::string& octets, Donnees fichier) {
  return octets.find(Signature(fichier));
}

/// Puts blanks before the signature of a header, within its field.
std::string Decale(std::string octets, Donnees fichier) {
  const std::size_t place = PlaceSignature(octets, fichier);
  octets.insert(place, "   ");
  return octets.erase(place + 3 + Signature(fichier).size(), 3);
}

constexpr Faute fautesEntete[] = {
    {"compte sous la borne",
     [](std::string o, Donnees f) { return AvecCompte(std::move(o), Ligne(f).moindre - 1); }},
    {"compte négatif", [](std::string o, Donnees) { return AvecCompte(std::move(o), -1); }},
    {"signature en minuscules",
     [](std::string o, Donnees f) { return o.replace(PlaceSignature(o, f), 2, "gl"); }},
    {"signature trop courte",
     [](std::string o, Donnees f) {
       return o.replace(PlaceSignature(o, f) + Signature(f).size() - 1, 1, " ");
     }},
    {"signature trop longue",
     [](std::string o, Donnees f) {
       return o.replace(PlaceSignature(o, f) + Signature(f).size(), 1, "X");
     }},
    {"signature précédée d'une tabulation",
     [](std::string o, Donnees f) {
       o = Decale(std::move(o), f);
       o[PlaceSignature(o, f) - 1] = '\t';
       return o;
     }},
    {"signature d'un autre fichier",
     [](std::string o, Donnees f) { return o.replace(PlaceSignature(o, f), 8, "GLX9.DAT"); }},
    {"fichier vide", [](std::string, Donnees) { return std::string(); }},
    {"en-tête coupé au milieu de la signature",
     [](std::string o, Donnees f) { return o.substr(0, PlaceSignature(o, f) + 4); }},
};

constexpr Faute fautesReserve[] = {
    {"signature en minuscules", [](std::string o, Donnees) { return o.replace(0, 2, "gl"); }},
    {"un octet de moins", [](std::string o, Donnees f) { return o.substr(0, Nom(f).size() - 1); }},
    {"précédée d'un blanc", [](std::string o, Donnees) { return " " + o; }},
    {"dernier caractère autre",
     [](std::string o, Donnees f) { return o.replace(Nom(f).size() - 1, 1, "t"); }},
    {"fichier vide", [](std::string, Donnees) { return std::string(); }},
};

/// Every file of one kind of check.
std::vector<Donnees> Fichiers(Controle controle) {
  std::vector<Donnees> fichiers;
  for (std::size_t i = 0; i < nombreFichiers; ++i) {
    if (catalogueFichiers[i].controle == controle) {
      fichiers.push_back(static_cast<Donnees>(i));
    }
  }
  return fichiers;
}

/// Refused with the three lines about the file, a beep, and the file left as it was.
void AttendRefusDe(Donnees fichier, const Faute& faute) {
  SCOPED_TRACE(Nom(fichier) + " : " + faute.nom);
  Bibliotheque b;
  const std::string octets = faute.abime(b.dossier.Lit(NomFabrique(fichier)), fichier);
  b.dossier.Ecrit(Nom(fichier), octets);
  const Depart depart = Essaie(b);
  AttendRefus(b, depart, TroisLignes(b, Nom(fichier)));
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(b.dossier.Lit(Nom(fichier)), octets);
}

TEST(Refus, DUnMauvaisEnTeteDitLeFichier) {
  ASSERT_EQ(Fichiers(Controle::entete).size(), 9U);
  for (const Donnees fichier : Fichiers(Controle::entete)) {
    for (const Faute& faute : fautesEntete) {
      AttendRefusDe(fichier, faute);
    }
  }
}

TEST(Refus, DUneMauvaiseReserveDitLeFichier) {
  ASSERT_EQ(Fichiers(Controle::signature).size(), 8U);
  for (const Donnees fichier : Fichiers(Controle::signature)) {
    for (const Faute& faute : fautesReserve) {
      AttendRefusDe(fichier, faute);
    }
  }
}

TEST(Refus, DeBlancsEnTeteDeSignatureDependDuFichier) {
  for (const Donnees fichier : Fichiers(Controle::entete)) {
    SCOPED_TRACE(Nom(fichier));
    const bool tolere =
        fichier == Donnees::GLR1 || fichier == Donnees::GLFV1 || fichier == Donnees::GLFV2;
    if (tolere) {
      Bibliotheque b;
      b.dossier.Ecrit(Nom(fichier), Decale(b.dossier.Lit(NomFabrique(fichier)), fichier));
      EXPECT_TRUE(Essaie(b).cadre);
    } else {
      AttendRefusDe(fichier, {"blancs en tête", Decale});
    }
  }
}

TEST(Refus, RangeLaSignatureRogneeEnMemoireEtNonSurDisque) {
  Bibliotheque b;
  const std::string decale = Decale(b.dossier.Lit("GLR1.stp"), Donnees::GLR1);
  b.dossier.Ecrit("GLR1.DAT", decale);
  b.Demarre();
  EXPECT_EQ(b.module->bufFamille.entete().nomFamille.brut(),
            "GASTRELF.DAT" + std::string(116, ' '));
  EXPECT_EQ(b.dossier.Lit("GLR1.DAT"), decale);
}

TEST(Refus, NeVisePasLeCompteALaBorneNiCeQuiSuitLEnTete) {
  for (const Donnees fichier : Fichiers(Controle::entete)) {
    Bibliotheque b;
    const std::string entete =
        b.dossier.Lit(NomFabrique(fichier)).substr(0, Ligne(fichier).longueur);
    b.dossier.Ecrit(Nom(fichier), AvecCompte(entete, Ligne(fichier).moindre) + "n'importe quoi");
    EXPECT_TRUE(Essaie(b).cadre) << Nom(fichier);
  }
}

TEST(Refus, ArreteLesFromagesA121EtLesLaisseA122) {
  Bibliotheque b;
  const std::string fromages = b.dossier.Lit("GLF1.stp");
  b.dossier.Ecrit("GLF1.DAT", AvecCompte(fromages, 121));
  EXPECT_EQ(Essaie(b).fin, 1);
  b.dossier.Ecrit("GLF1.DAT", AvecCompte(fromages, 122));
  EXPECT_TRUE(Essaie(b).cadre);
}

TEST(Refus, NeVisePasCeQueTiennentLesMillesimesEtLAnnuaire) {
  for (const std::string& octets : {std::string(), std::string("x"), std::string(500, '\x55')}) {
    Bibliotheque b;
    b.dossier.Ecrit("GLMV.DAT", octets);
    b.dossier.Ecrit("GLMC.DAT", octets);
    EXPECT_TRUE(Essaie(b).cadre);
    EXPECT_EQ(b.dossier.Lit("GLMV.DAT"), octets);
    EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), octets);
  }
}

TEST(Refus, DUnFichierSansCopieDeFabriqueDitLaCopie) {
  for (std::size_t i = 0; i < static_cast<std::size_t>(Donnees::GLPREF); ++i) {
    const std::string fabrique = NomFabrique(static_cast<Donnees>(i));
    SCOPED_TRACE(fabrique);
    Bibliotheque b;
    b.dossier.Supprime(fabrique);
    const Depart depart = Essaie(b);
    AttendRefus(b, depart, NonTrouve(b, fabrique));
    EXPECT_EQ(b.messages.bips, 0);
  }
}

TEST(Refus, RendLePointeurEtBipeAvantDeParler) {
  Bibliotheque b;
  b.dossier.Ecrit("GLR1.DAT", "");
  b.messages.pendant = [&] {
    EXPECT_FALSE(b.pointeur.sablier);
    EXPECT_EQ(b.messages.bips, 1);
  };
  EXPECT_EQ(Essaie(b).fin, 1);
}

TEST(Refus, GardeLesFichiersRestauresAvantLui) {
  Bibliotheque b;
  b.dossier.Ecrit("GLF1.DAT", "abîmé");
  EXPECT_EQ(Essaie(b).fin, 1);
  EXPECT_THAT(
      b.disque.changements(),
      ElementsAre("copie GLR1.stp GLR1.DAT", "copie GLR2.stp GLR2.DAT", "écrit GLR2.DAT 0+150",
                  "copie GLR3.stp GLR3.DAT", "copie GLR4.stp GLR4.DAT"));
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), b.dossier.Lit("GLR4.stp"));
  EXPECT_FALSE(b.dossier.A("GLF2.DAT"));
  EXPECT_FALSE(b.dossier.A("GLPREF.DAT"));
  EXPECT_FALSE(b.dossier.A("IMAGE"));
}

TEST(Refus, DureJusquACeQueLeFichierAbimeSoitSupprime) {
  Bibliotheque b;
  b.dossier.Ecrit("GLF1.DAT", "abîmé");
  EXPECT_EQ(Essaie(b).fin, 1);
  EXPECT_EQ(Essaie(b).fin, 1);
  b.dossier.Supprime("GLF1.DAT");
  EXPECT_TRUE(Essaie(b).cadre);
}

}  // namespace
}  // namespace gastrelle::essai
