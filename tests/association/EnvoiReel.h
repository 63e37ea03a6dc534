// A program's folder whose documents go to the programs of the desktop.
#pragma once

#include <string>

#include "doublures/Bibliotheque.h"
#include "sortie/Envoi.h"

namespace gastrelle::essai {

struct EnvoiReel {
  /// `nom`: how the folder's name begins.
  explicit EnvoiReel(const std::string& nom = "gastrelle") : b(nom) {}

  /// Sends the document "truc".
  void Envoie(Extension extension) {
    EnvoieDocument(module, VueTruc{"Saisir", "À feu vif."}, extension);
  }

  Bibliotheque b;
  AssociationSysteme association;
  Module1 module{Services{b.disque, b.messages, b.pointeur, b.horloge, association, b.son,
                          b.processus, b.imprimantes},
                 b.module->chemins};
};

}  // namespace gastrelle::essai
