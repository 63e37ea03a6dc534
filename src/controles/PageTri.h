// The page of a sorting: a list of groups, "?" first, which chooses none of them; the entries of
// the one that is chosen; the way from an entry to the tab that shows it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controles/ComboListe.h"
#include "controles/ListeChoix.h"
#include "controles/ListePartagee.h"
#include "controles/PageOnglet.h"

namespace gastrelle {

/// A list of such a page: its name, its caption and the name of that, its tooltip.
struct DescriptionListe {
  const char* nom;
  const char16_t* legende;
  const char* nomLegende = "";
  const char16_t* infobulle = u"";
};

/// What such a page says.
struct DescriptionTri {
  DescriptionListe groupes;
  DescriptionListe entrees;
  const char16_t* infobulleAffiche;  ///< of `cmdActiver`, which shows the entry that is selected
  std::string_view aucune;           ///< the one line of a group without an entry
};

class PageTri : public PageOnglet {
 public:
  /// The entry rule of the tab: no group is chosen yet.
  void Entre() override;

 protected:
  /// Puts the list of groups at the head of the page. `lesGroupes` are those of the whole window.
  PageTri(const PlaceOnglet& place, ListePartagee& lesGroupes, const DescriptionTri& description);

  /// The entries of a group. Throws on a failure.
  [[nodiscard]] virtual Liste EntreesDe(std::int32_t groupe) = 0;
  /// Shows the entries with what belongs to them, or what stands there without them. Entries that
  /// are only the line that tells that there are none can't be used.
  virtual void MontreEntrees(bool montrees, bool utilisables);
  /// The entry that is selected becomes the one that the whole window shows.
  virtual void Affiche() = 0;

  /// The text of the group that is chosen, if one is.
  [[nodiscard]] std::optional<std::string> GroupeChoisi() const;
  /// What the list of entries shows.
  [[nodiscard]] std::vector<std::string> Noms() const;

  ComboListe* groupes;
  ListeChoix* entrees;
  QWidget* colonneEntrees;  ///< the list under its caption

 private:
  void ChoisitGroupe();

  const DescriptionTri& description_;
  QPushButton* cmdActiver_;
};

}  // namespace gastrelle
