// How much of the recipe files no live record refers to any more.
#pragma once

#include <cstdint>

#include "data/Module1.h"

namespace gastrelle {

/// Sizes in bytes, over the four recipe files.
struct Encombrement {
  std::int64_t taille = 0;      ///< as the files stand
  std::int64_t necessaire = 0;  ///< what their live records and texts need

  [[nodiscard]] std::int64_t gain() const { return taille - necessaire; }
};

/// Walks the recipes into a record of its own: the working record stays as it is. Throws on a
/// failure.
Encombrement MesureRecettes(Module1& module);

}  // namespace gastrelle
