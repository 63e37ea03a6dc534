// The wine catalogue: the regions and the wines, each wine in one region with a note of its own and
// one for its place in the cellar. A pool is written before the record that points into it, a
// record before the header that counts it. Everything here throws ErreurExecution on a failure, and
// what was written before it stays. Texts are Windows-1252.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/Collation.h"
#include "data/Module1.h"

namespace gastrelle {

/// What a box takes for the name of a region or of a wine, in characters. The record keeps the
/// first 64 of them.
inline constexpr int limiteNomVin = 128;

/// Numbers of the last region and of the last wine that can't be deleted: those of the factory.
inline constexpr std::int32_t derniereRegionProtegee = DernierProtege(Donnees::GLV1);
inline constexpr std::int32_t dernierVinProtege = DernierProtege(Donnees::GLV2);

/// The wines' file must still be there (the user is told when it isn't).
void ExigeVins(Module1& module);

/// All live regions, through the working record. The scan stops at the header's count, or quietly
/// at the last record, repairs nothing and asks for no file.
Liste ListeRegions(Module1& module);

/// All live wines, through the working record; the header's count is then put right.
Liste ListeVins(Module1& module);

/// The live wines of a region, through the working record, which stays on the last wine read.
/// Nothing is repaired and no file asked for.
Liste VinsDeLaRegion(Module1& module, std::int32_t region);

/// What is known of a wine beside its name.
struct VinLu {
  std::string region;
  std::string notes;
  std::string notesCave;
};

/// Reads a wine and its region into the working records, then its two texts. The files must still
/// be there (the user is told when one isn't); the pool is asked for by a text alone.
VinLu LitVin(Module1& module, std::int32_t numero);

/// Reads a wine into the working record; returns the number of its region. The file must still be
/// there.
std::int32_t LitRegionDuVin(Module1& module, std::int32_t numero);

/// Reads a wine into the working record; no file is asked for.
void RelitVin(Module1& module, std::int32_t numero);

/// Puts a new region behind the last one. The file must still be there. Returns its number.
std::int32_t AjouteRegion(Module1& module, std::string_view nom);

/// Writes a region anew, under another name. The file must still be there.
void RenommeRegion(Module1& module, std::int32_t numero, std::string_view nom);

/// Deletes a region and, before it, its wines one after the other, each counted off at once; their
/// texts stay in the pool. The two files must still be there.
void SupprimeRegion(Module1& module, std::int32_t numero);

/// What the user entered for a wine, trimmed.
struct VinSaisi {
  std::string nom;
  std::int32_t region = 0;  ///< its record number
  std::string notes;
};

/// Puts a new wine behind the last one, without a bottle and without a note on the cellar; the
/// length of the latter stays that of the working record, as it stood there. The files must still
/// be there. Returns its number.
std::int32_t AjouteVin(Module1& module, const VinSaisi& saisi);

/// Writes a wine anew at its number. The working record must hold it as it was read: the old
/// reference of its note and its cellar are taken from there. The pool must still be there before
/// a note is written, the wines' file before the record is.
void ChangeVin(Module1& module, std::int32_t numero, const VinSaisi& saisi);

/// Deletes a wine; its texts stay in the pool. The file must still be there.
void SupprimeVin(Module1& module, std::int32_t numero);

}  // namespace gastrelle
