#include "doublures/ServicesEssai.h"

#include <gtest/gtest.h>

#include "data/Texte1252.h"

namespace gastrelle::essai {

void MessagesEssai::Informe(std::string_view texte, Icone icone, std::string_view titre) {
  vus.push_back({std::string(texte), icone, std::string(titre)});
  if (pendant) {
    pendant();
  }
}

Reponse MessagesEssai::Demande(std::string_view texte, Choix offert) {
  choix = offert;
  questions.emplace_back(texte);
  if (reponses.empty()) {
    ADD_FAILURE() << "question inattendue : " << VersUtf8(texte);
    return Reponse::non;
  }
  const Reponse reponse = reponses.front();
  reponses.pop_front();
  return reponse;
}

}  // namespace gastrelle::essai
