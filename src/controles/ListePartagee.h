// The same entries in several drop-down lists of a window.
#pragma once

#include <string>
#include <vector>

#include "controles/ComboListe.h"

namespace gastrelle {

class ListePartagee {
 public:
  /// From now on a list shows the entries, and ahead of them `epingle` if it isn't empty.
  void Suit(ComboListe& combo, std::string_view epingle = {});

  /// New entries, in every list, where nothing is chosen then.
  void Remplace(Liste entrees);

 private:
  struct Suiveuse {
    ComboListe* combo;
    std::string epingle;
  };

  void Garnit(const Suiveuse& liste) const;

  Liste entrees_;
  std::vector<Suiveuse> suiveuses_;
};

}  // namespace gastrelle
