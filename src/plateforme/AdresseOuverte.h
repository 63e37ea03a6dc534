// What may be handed to the system to be opened, as a text.
#pragma once

#include <string>
#include <string_view>

namespace gastrelle {

/// True if the text begins with a scheme: a letter, at least one more letter, digit, "+", "-" or
/// ".", and ":".
bool AUnSchema(std::string_view texte);

/// The path in a "file:" address, its section left out, what "%" stands for put back. Empty for any
/// other address, and for one of another machine.
std::string CheminDAdresse(std::string_view adresse);

/// An address whose program gets it as one argument, however the line that starts that program is
/// written: quotes around its place don't help if the address closes them.
std::string EnUnArgument(std::string_view adresse);

}  // namespace gastrelle
