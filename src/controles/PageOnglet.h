// One page of a window with tabs: a logo band at its head, then its controls, then its buttons.
#pragma once

#include <initializer_list>

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>

#include "data/Vues.h"

namespace gastrelle {

class FenetreOnglets;
class PageOnglet;
class ZoneTexte;

/// What a tab and the head of its page say, and how the page is made. The texts are the screen's
/// own.
struct DescriptionOnglet {
  const char16_t* titre;
  const char16_t* infobulle;
  const char16_t* entete;         ///< heading of the page
  const char16_t* infobulleLogo;  ///< tooltip of the logo
  const char* sujetAide;          ///< topic that the help key opens on this page
  PageOnglet& (*cree)(FenetreOnglets&);
};

class PageOnglet : public QWidget {
 public:
  /// Becomes the page that its window is making.
  explicit PageOnglet(FenetreOnglets& hote);

  /// The entry rules of the tab, once the frame has its pattern.
  virtual void Entre() = 0;

  /// What the tab shows, for those who read it from outside.
  [[nodiscard]] virtual Vue VueCourante() const { return {}; }

  /// Text of the box in the logo band, Windows-1252.
  void PoseAnnonce(std::string_view texte);

 protected:
  /// Where a page puts its controls.
  [[nodiscard]] QGridLayout& contenu() { return *contenu_; }
  /// The row of buttons, at the right end of the page's foot.
  [[nodiscard]] QBoxLayout& boutons() { return *boutons_; }
  /// A row at the page's head, before its controls: what the page works on.
  QRadioButton* Option(const QString& nom, const QString& titre);

  /// A caption above or beside a control, which its access key and screen readers follow.
  QLabel* Legende(const QString& texte, QWidget* pour);
  /// The keyboard goes through the controls in this order, whatever the order of their making.
  static void OrdonneClavier(std::initializer_list<QWidget*> controles);

  /// The next row of the page: a caption, and a control beside it up to the page's right edge.
  /// Returns the number of the row.
  int Rang(const QString& legende, QWidget* controle);
  /// The next two rows of the page: a caption, and a control under it over the page's whole width.
  /// Returns the number of the control's row.
  int Etage(const QString& legende, QWidget* controle);

 private:
  ZoneTexte* annonce_;
  QHBoxLayout* options_;
  QGridLayout* contenu_;
  QBoxLayout* boutons_;
};

/// How a description names the page of a tab: `CreePage<frmRecettes, frmRecettesListe>`.
template <class Hote, class Page>
PageOnglet& CreePage(FenetreOnglets& hote) {
  return *new Page(static_cast<Hote&>(hote));
}

}  // namespace gastrelle
