// One sequence on the files of the recipes, met by an accident at each of its calls.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "accidents/Accident.h"
#include "accidents/BibliothequeEnUsage.h"

namespace gastrelle::essai {

using Sequence = std::function<void(Module1&)>;

/// The sequences of the program, as their dialogs run them.
void Nettoie(Module1& module);
void Vide(Module1& module);
void Reinitialise(Module1& module);
void Sauve(Module1& module);

/// What happens between the accident and the rescue.
enum class Entretemps {
  rien,
  soiree  ///< the program is started once more, and ended (`PasseUneSoiree`)
};

/// A death at each place in turn, as ranges (`Plages`).
struct BilanDesMorts {
  /// The places that hold all recipes as they were before the sequence; ", neuves" behind them, or
  /// alone, once the .DAT files hold those that the sequence leaves, where they are others.
  std::vector<std::string> etats;
  /// What the start finds after the rescue: "anciennes" or "neuves".
  std::vector<std::string> retours;
};

/// The process is killed. Each time recipes must be whole somewhere, and the rescue must succeed.
BilanDesMorts TueePartout(const Sequence& sequence, Entretemps entretemps = Entretemps::rien);

/// A failure at each call in turn.
struct BilanDesEchecs {
  /// The calls whose failure nobody is told.
  std::vector<std::string> muets;
  /// What the user is told and what the next start finds: "fatal: anciennes", "rien: neuves".
  std::set<std::string> issues;
};

/// The call fails, with nothing done and, for a write, with half of it done. Each time recipes must
/// be whole somewhere. The rescue is for whoever was told of a fatal failure; whoever wasn't starts
/// the program as ever.
BilanDesEchecs EchoueePartout(const Sequence& sequence, Entretemps entretemps = Entretemps::rien);

/// Chooses the way back by the names in the folder and goes it, then starts the program: which
/// recipes it finds, "anciennes" or "neuves". Others fail the test.
std::string SecourtEtRetrouve(BibliothequeEnUsage& b, const RecettesLues& neuves);

/// The program is started once more, works if it can, and ends with its backup copy.
void PasseUneSoiree(BibliothequeEnUsage& b);

}  // namespace gastrelle::essai
