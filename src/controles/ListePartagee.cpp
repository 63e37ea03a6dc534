#include "controles/ListePartagee.h"

#include <utility>

namespace gastrelle {

void ListePartagee::Suit(ComboListe& combo, std::string_view epingle) {
  Garnit(suiveuses_.emplace_back(Suiveuse{&combo, std::string(epingle)}));
}

void ListePartagee::Remplace(Liste entrees) {
  entrees_ = std::move(entrees);
  for (const Suiveuse& liste : suiveuses_) {
    Garnit(liste);
  }
}

void ListePartagee::Garnit(const Suiveuse& liste) const {
  liste.combo->Vide();
  if (!liste.epingle.empty()) {
    liste.combo->modele().Epingle(liste.epingle);
  }
  liste.combo->Ajoute(entrees_);
}

}  // namespace gastrelle
