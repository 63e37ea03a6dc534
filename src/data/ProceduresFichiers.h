// The small procedures around the data files that every catalogue uses, and the operation guard.
#pragma once

#include <string>
#include <string_view>

#include "data/Module1.h"
#include "data/Texte1252.h"

namespace gastrelle {

/// True if the program's folder holds a file of that bare name. A search that fails for any reason
/// answers False; nothing is ever reported.
[[nodiscard]] bool FichierExiste(Module1& module, std::string_view nom);

/// The same test; a False answer is told to the user, the pointer being set to normal before.
[[nodiscard]] bool FichierExisteMsg(Module1& module, std::string_view nom);
[[nodiscard]] bool FichierExisteMsg(Module1& module, Donnees fichier);

/// FichierExisteMsg; raises error 53 on a False answer.
void ExigeFichier(Module1& module, Donnees fichier);

/// True if the program's folder holds a folder of that name. Silent.
[[nodiscard]] bool DossierExiste(Module1& module, std::string_view nom);

/// A path of the program (Windows-1252) as the system knows it, in UTF-8. A path in the program's
/// own folder is taken from there, whatever the folder's own name holds.
[[nodiscard]] std::string CheminSysteme(Module1& module, std::string_view chemin);

/// The other way: a whole path of the system (UTF-8) as the program knows it. What Windows-1252
/// doesn't hold becomes "?", except in the name of the program's own folder.
[[nodiscard]] std::string CheminProgramme(Module1& module, const std::string& chemin);

/// True if a picture stands at that path. A search that fails in any way counts as not found.
[[nodiscard]] bool ImageExiste(Module1& module, std::string_view chemin);

/// Opens a data file into its place of the shared state.
void Ouvre(Module1& module, Donnees fichier);

/// The header test of a file's row of the table; raises error 53 on a bad header.
void VerifieEntete(Module1& module, Donnees fichier);

/// The same test on the header of a file that is kept apart, once it has been read.
template <class T>
void ExigeEntete(Donnees fichier, T& entete) {
  const LigneCatalogue& ligne = Ligne(fichier);
  if (entete.actif < ligne.moindre) {
    throw ErreurExecution(Panne::fichierIntrouvable);
  }
  auto& signature = NomOuSignature(entete);
  const std::string lue(ligne.rognage == Rognage::deuxBouts ? Rogne(signature.brut())
                                                            : RogneDroite(signature.brut()));
  signature = lue;
  if (lue != Signature(fichier)) {
    throw ErreurExecution(Panne::fichierIntrouvable);
  }
}

/// Puts the factory copy of a data file in its place, opens it, writes today's date into the header
/// of the recipes, and tests what was put there. Throws on a failure.
void RestaureDeFabrique(Module1& module, Donnees fichier);

/// Closes the four recipe files.
void FermeFichiersRecettes(Module1& module);

/// Reopens the four recipe files, in order, with the header test if `verifier` asks for it. The
/// first failure stops the sequence and answers False; nothing is reported.
[[nodiscard]] bool OuvreFichiersRecettes(Module1& module, bool verifier);

/// Plays the program's sound, a warning or a refusal, without waiting for its end.
void JoueExclamation(Module1& module);

/// Pointer to normal, a beep, the fatal message, the end of the process with status 1.
[[noreturn]] void ErreurFatale(Module1& module);

/// FichierExisteMsg; ErreurFatale at once on a False answer.
void ExigeFichierOuFinit(Module1& module, Donnees fichier);

/// The end of a guarded operation: pointer to normal, then ErreurFatale if the flag stands.
void FinOperation(Module1& module);

/// The operation guard: the block, whose failure sets the shared flag `erreurFatale`, then the end
/// of the operation.
template <class F>
void Garde(Module1& module, F&& bloc) {
  try {
    bloc();
  } catch (const ErreurExecution&) {
    module.erreurFatale = true;
  }
  FinOperation(module);
}

/// An operation of the user's: the hourglass, then the block under the guard.
template <class F>
void Opere(Module1& module, F&& bloc) {
  module.services.pointeur.Sablier();
  Garde(module, bloc);
}

}  // namespace gastrelle
