// The real printer behind the commands, with a print service of the test's own.
#pragma once

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "impression/ServeurImpression.h"
#include "imprimante/AccesImprimanteSysteme.h"

namespace gastrelle::essai {

class ImpressionEssai : public testing::Test {
 protected:
  ServeurImpression serveur;
  Bibliotheque b;
  AccesImprimanteSysteme acces{QStringLiteral(DOSSIER_PROGRAMME)};
  Module1 module{Services{b.disque, b.messages, b.pointeur, b.horloge, b.association, b.son,
                          b.processus, acces},
                 b.module->chemins};
};

}  // namespace gastrelle::essai
