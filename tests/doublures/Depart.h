// One start of the program, whatever its end, and the messages of a refused start.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/Main.h"
#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {

/// How a start ended: the frame on the screen, the end of the process, or a failure outside every
/// guard.
struct Depart {
  bool cadre = false;
  std::optional<int> fin;
  std::optional<Panne> erreur;
};

/// Runs the start; unlike `Bibliotheque::Demarre` it expects nothing and keeps the journal.
inline Depart Essaie(Bibliotheque& b, bool dejaEnCours = false) {
  Depart depart;
  try {
    Main(*b.module, dejaEnCours, [&] { depart.cadre = true; });
  } catch (const FinDuProgramme& fin) {
    depart.fin = fin.statut;
  } catch (const ErreurExecution& erreur) {
    depart.erreur = erreur.panne();
  }
  return depart;
}

/// The three lines about a file that can't be used.
inline MessageVu TroisLignes(const Bibliotheque& b, std::string_view nom) {
  return {"Fichier\r\n" + b.module->chemins.De(nom) + "\r\n" +
              std::string("non trouvé ou incompatible ou erreur disque."_1252),
          Icone::critique, "Gastrelle 2005"};
}

/// The two lines about a file that isn't there.
inline MessageVu NonTrouve(const Bibliotheque& b, std::string_view nom) {
  return {"Fichier " + b.module->chemins.De(nom) + "\r\n" +
              std::string("non trouvé ou erreur disque."_1252),
          Icone::critique, "Gastrelle 2005"};
}

/// The last message of a program that can't go on.
inline MessageVu Fatal() {
  return {std::string("Erreur fatale. Impossibilité de continuer."_1252), Icone::critique,
          "Gastrelle 2005"};
}

}  // namespace gastrelle::essai
