#include "accidents/coeur/Deroulement.h"

#include <gtest/gtest.h>

#include "accidents/Secours.h"
#include "data/ProceduresFichiers.h"
#include "data/Texte1252.h"
#include "doublures/Depart.h"
#include "maintenance/Nettoyage.h"
#include "maintenance/Remplacement.h"
#include "maintenance/Sauvegarde.h"

namespace gastrelle::essai {
namespace {

/// A sequence that no accident meets: its calls, and the recipes that it leaves.
struct Modele {
  explicit Modele(const Sequence& sequence) {
    BibliothequeEnUsage b;
    try {
      sequence(*b.module);
    } catch (const FinDuProgramme& fin) {
      EXPECT_EQ(fin.statut, 1);
    }
    coups = CoupsDe(b.disque.journal());
    neuves = b.Recettes();
  }

  std::vector<Coup> coups;
  RecettesLues neuves;
};

std::string Etat(const BibliothequeEnUsage& b, const RecettesLues& neuves) {
  const auto& dossier = b.dossier.chemin();
  std::string anciennes = PlacesTenant(dossier, b.avant);
  if (neuves == b.avant || LitRecettes(QuatreDe(dossier, "DAT")) != neuves) {
    return anciennes;
  }
  return anciennes + (anciennes.empty() ? "neuves" : ", neuves");
}

std::string EtatExige(const BibliothequeEnUsage& b, const RecettesLues& neuves) {
  std::string etat = Etat(b, neuves);
  EXPECT_FALSE(etat.empty()) << "aucune recette entière nulle part";
  return etat;
}

/// The program starts on the folder: which recipes it finds.
std::string Retrouve(BibliothequeEnUsage& b, const RecettesLues& neuves) {
  b.Redemarre();
  const RecettesLues lues = b.Recettes();
  EXPECT_TRUE(lues == b.avant || lues == neuves) << "ni les anciennes recettes, ni les neuves";
  return lues == b.avant ? "anciennes" : "neuves";
}

constexpr const char* ditFatal = "fatal";
constexpr const char* rienDit = "rien";

/// Runs a sequence in which a call fails: what the user is told, messages by their first line.
std::string Parole(BibliothequeEnUsage& b, const Sequence& sequence) {
  try {
    sequence(*b.module);
  } catch (const FinDuProgramme& fin) {
    EXPECT_EQ(fin.statut, 1);
    EXPECT_EQ(b.messages.vus, std::vector{Fatal()});
    return ditFatal;
  }
  if (b.messages.vus.empty()) {
    return rienDit;
  }
  std::string ligne = VersUtf8(b.messages.vus.front().texte);
  ligne.erase(ligne.find("\r\n"));
  const std::string dossier = VersUtf8(b.module->chemins.cheminAppli());
  return ligne.replace(ligne.find(dossier), dossier.size(), "");
}

void Patiente(BibliothequeEnUsage& b, Entretemps entretemps) {
  if (entretemps == Entretemps::soiree) {
    PasseUneSoiree(b);
  }
}

}  // namespace

void Nettoie(Module1& module) {
  Garde(module, [&] { static_cast<void>(NettoieRecettes(module)); });
}

void Vide(Module1& module) {
  if (ExisteOrigines(module)) {
    RemplaceRecettes(module, FabriqueUneRecette);
  }
}

void Reinitialise(Module1& module) {
  if (ExisteOrigines(module)) {
    RemplaceRecettes(module, FabriqueOrigines);
  }
}

void Sauve(Module1& module) {
  static_cast<void>(CopieSecurite(module));
}

void PasseUneSoiree(BibliothequeEnUsage& b) {
  if (Essaie(b).cadre) {
    static_cast<void>(CopieSecurite(*b.module));
  }
}

std::string SecourtEtRetrouve(BibliothequeEnUsage& b, const RecettesLues& neuves) {
  const auto& dossier = b.dossier.chemin();
  Revient(dossier, RetourPour(NomsPresents(dossier)));
  return Retrouve(b, neuves);
}

BilanDesMorts TueePartout(const Sequence& sequence, Entretemps entretemps) {
  const Modele modele(sequence);
  Plages etats;
  Plages retours;
  for (const Coup& coup : modele.coups) {
    SCOPED_TRACE(coup.ligne);
    BibliothequeEnUsage b;
    Tue(b.disque, coup, [&] { sequence(*b.module); });
    etats.Ajoute(EtatExige(b, modele.neuves), coup);
    Patiente(b, entretemps);
    retours.Ajoute(SecourtEtRetrouve(b, modele.neuves), coup);
  }
  return {etats.vues(), retours.vues()};
}

BilanDesEchecs EchoueePartout(const Sequence& sequence, Entretemps entretemps) {
  const Modele modele(sequence);
  BilanDesEchecs bilan;
  for (const Coup& coup : modele.coups) {
    if (coup.aMoitie && coup.ligne.starts_with("copie ")) {
      continue;  // a copy that fails leaves nothing of its own
    }
    SCOPED_TRACE(coup.ligne);
    BibliothequeEnUsage b;
    b.disque.EchoueALAppel(coup.appel, Panne::entreeSortie,
                           coup.aMoitie ? Maniere::moitieEcrite : Maniere::rienFait);
    const std::string parole = Parole(b, sequence);
    static_cast<void>(EtatExige(b, modele.neuves));
    if (parole == rienDit) {
      bilan.muets.push_back(coup.ligne);
    }
    Patiente(b, entretemps);
    bilan.issues.insert(
        parole + ": " +
        (parole == ditFatal ? SecourtEtRetrouve(b, modele.neuves) : Retrouve(b, modele.neuves)));
  }
  return bilan;
}

}  // namespace gastrelle::essai
