// The aisles of the shop, in the order in which one walks through them. An aisle is its place in
// this table: the files hold no names.
#pragma once

#include <array>
#include <string_view>

#include "data/Module1.h"
#include "data/Texte1252.h"

namespace gastrelle {

inline constexpr std::array<std::string_view, nombreRayons> nomsRayons{
    "Boucherie",
    "Charcuterie",
    "Triperie",
    "Poissonnerie",
    "Légumes"_1252,
    "Fruits",
    "Beurre/Oeufs/Fromages",
    "Lait",
    "Epicerie",
    "Conserves",
    "Surgelés"_1252,
    "Boulangerie/Viennoiserie",
    "Pâtisserie"_1252,
    "Boissons",
    "Divers",
};

}  // namespace gastrelle
