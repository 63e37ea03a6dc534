// The file dialog for the picture of a recipe.
#pragma once

#include <optional>
#include <string>

#include <QWidget>

#include "data/Module1.h"

namespace gastrelle {

/// Asks for a picture, from the program's picture folder on. Nothing if the user gives up. The path
/// is Windows-1252; a character that it can't hold is "?", with a beep.
std::optional<std::string> ChoisitImage(Module1& module, QWidget* parent);

}  // namespace gastrelle
