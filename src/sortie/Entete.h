// The head of what leaves the program: its title and the day.
#pragma once

#include <chrono>
#include <string>

#include "data/Module1.h"

namespace gastrelle {

/// "d/m/yyyy", day and month without a zero in front: "5/3/2026".
[[nodiscard]] std::string DateCourte(std::chrono::year_month_day date);

/// The application's title and, between brackets, the day of the edition.
[[nodiscard]] std::string EnteteEdition(const Module1& module);

}  // namespace gastrelle
