// What the compiled help may hold: looked through before the toolkit, which trusts it, gets to it.
#pragma once

#include <QByteArray>

namespace gastrelle {

/// `octets`: a compiled resource of version 1. True if it is one folder of files, each whole, not
/// compressed and no longer than any page; and if no page is built so that showing it takes long.
bool ArbreSain(const QByteArray& octets);

}  // namespace gastrelle
