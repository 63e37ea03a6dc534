// The way back from an accident, as docs/secours.md tells it: chosen by the names that lie in the
// program's folder, done with a file manager's operations alone.
#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace gastrelle::essai {

/// The ways of docs/secours.md, by their letters there.
enum class Retour {
  quatreDeTemp,     ///< A: the four files of TEMP take the place of the .DAT files
  datTelsQuels,     ///< B: the .DAT files are whole and stay
  tousLesTmp,       ///< C: every .tmp file takes its .DAT name
  tmpDesManquants,  ///< D: a .DAT file that is missing comes back from its .tmp file
  quatreDeSauve     ///< E: the four files of SAUVE take the place of the .DAT files
};

/// Names of the files in a program's folder, those of its folders with "/" between. A folder's own
/// name ends in "/".
std::set<std::string> NomsPresents(const std::filesystem::path& dossier);

/// The way that these names tell.
Retour RetourPour(const std::set<std::string>& noms);

/// Goes that way, then clears away what it leaves behind: .tmp files, TEMP, halves of copies.
void Revient(const std::filesystem::path& dossier, Retour retour);

}  // namespace gastrelle::essai
