// The print server before the toolkit talks to it, which would wait for it for minutes and ask for
// a password in a window of its own.
#pragma once

namespace gastrelle {

/// True if the server answers within a few seconds, and without a password.
[[nodiscard]] bool ServeurRepond();

/// From now on a server that asks for a password gets none: what it guards fails at once. It has to
/// be said again whenever the toolkit has just loaded what it talks to the server with.
void RefuseMotDePasse();

}  // namespace gastrelle
