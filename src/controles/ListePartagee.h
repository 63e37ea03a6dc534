// The same entries in several drop-down lists of a window.
#pragma once

#include <string>
#include <vector>

#include "controles/ComboListe.h"

namespace gastrelle {

class ListePartagee {
 public:
  /// From now on a list shows the entries, and ahead of them `epingle` if it isn't empty.
  void Suit(ComboListe& combo, std::string_view epingle = {}) {
    Garnit(suiveuses_.emplace_back(Suiveuse{&combo, std::string(epingle)}));
  }

  /// New entries, in every list, where nothing is chosen then.
  void Remplace(Liste entrees) {
    entrees_ = std::move(entrees);
    for (const Suiveuse& suiveuse : suiveuses_) {
      Garnit(suiveuse);
    }
  }

 private:
  struct Suiveuse {
    ComboListe* combo;
    std::string epingle;
  };

  void Garnit(const Suiveuse& suiveuse) const {
    suiveuse.combo->Vide();
    if (!suiveuse.epingle.empty()) {
      suiveuse.combo->modele().Epingle(suiveuse.epingle);
    }
    suiveuse.combo->Ajoute(entrees_);
  }

  Liste entrees_;
  std::vector<Suiveuse> suiveuses_;
};

}  // namespace gastrelle
