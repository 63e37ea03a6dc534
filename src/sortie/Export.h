// The export of the recipes: whole families, one after the other, in one text document.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "data/Collation.h"
#include "data/Module1.h"

namespace gastrelle {

inline constexpr std::string_view documentExport = "export.doc";

/// All live families in record order. The scan stops at the header's count, or quietly at the last
/// record, and leaves the working record alone. Throws on a failure.
[[nodiscard]] Liste FamillesAExporter(Module1& module);

/// Makes room for the document: one that is there is deleted once the user has agreed. False if he
/// hasn't.
[[nodiscard]] bool AccepteExport(Module1& module);

/// Writes the document: for each of the families, by its record number and in that order, its live
/// recipes in record order with their whole texts. False on any failure (a data file that is
/// missing is told): what was written before stays. `entreTemps` runs at every family and recipe.
/// The recipes' file is read once; what the document needs of it is kept until the end, the texts
/// aren't.
[[nodiscard]] bool EcritExport(Module1& module, const std::vector<std::int32_t>& familles,
                               const std::function<void()>& entreTemps);

}  // namespace gastrelle
