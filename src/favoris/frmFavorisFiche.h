// What four tabs of the favourites' window show of a favourite: two controls for its name and its
// category, and the boxes of its six texts, laid out alike.
#pragma once

#include <array>
#include <vector>

#include "controles/BoitesTexte.h"
#include "controles/PageOnglet.h"
#include "favoris/CatalogueFavoris.h"

namespace gastrelle {

class frmFavorisFiche : public PageOnglet {
 public:
  /// What the six boxes hold.
  [[nodiscard]] TextesFavori Textes() const;

 protected:
  /// The captions of the eight fields, from the top of the page on.
  using Legendes = std::array<const char16_t*, 8>;
  static constexpr Legendes siennes{u"sa ca&tégorie",  u"son no&m", u"son a&dresse",
                                    u"son télé&phone", u"son fa&x", u"son e-mai&l",
                                    u"son site &Web",  u"n&otes"};

  /// The boxes are named after their texts with `suffixe` behind.
  frmFavorisFiche(const PlaceOnglet& place, const QString& suffixe);

  /// Puts the fields on the page, behind those that are there, and the Tab key's way through them
  /// behind the first one's place in it.
  void Dispose(QWidget* premier, QWidget* second, const Legendes& legendes = siennes);
  /// The next row of the page: two captions, each with its control beside it.
  void AjoutePaire(const char16_t* legende, QWidget* controle, const char16_t* autreLegende,
                   QWidget* autre);
  void RendLectureSeule();
  /// The six boxes, in their order on the page.
  [[nodiscard]] std::vector<QWidget*> Boites() const;

  void MontreTextes(const TextesFavori& textes);
  /// Shows the texts of record `numero`, to be changed.
  void Reprend(const TextesFavori& textes, std::int32_t numero);
  /// Takes the blanks off both ends of the texts in their boxes.
  void RogneTextes();

  ZoneTexte* adresse;
  LigneTexte* telephone;
  LigneTexte* fax;
  LigneTexte* email;
  LigneTexte* siteWeb;
  ZoneTexte* notes;

 private:
  /// Calls `action` with each box and the member that holds its text.
  template <class Action>
  void PourChaque(Action action) const;
};

}  // namespace gastrelle
