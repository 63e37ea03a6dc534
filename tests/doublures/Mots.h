// The words and pictures of a window with tabs: tabs, headings, captions, tooltips, help topics.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include <QLabel>

#include "doublures/FenetreEssai.h"

namespace gastrelle::essai {

/// A page and what stands on it: heading, tooltip of its tab, tooltip of its logo, help topic.
struct PageAttendue {
  const char* onglet;
  const char* infobulle;
  const char* entete;
  const char* logo;
  const char* sujet;
};

/// A control with the caption above it and its tooltip.
struct ControleAttendu {
  const char* nom;
  const char* legende;
  const char* infobulle;
};

template <class Fenetre>
class Mots : public FenetreEssai<Fenetre> {
 protected:
  void AttendPages(const char* titre, const std::vector<PageAttendue>& pages) {
    EXPECT_EQ(this->fenetre->windowTitle(), Fr(titre));
    auto& onglets = this->template Le<QTabBar>("TabStrip1");
    ASSERT_EQ(onglets.count(), pages.size());
    for (int i = 0; i < onglets.count(); ++i) {
      const PageAttendue& page = pages[static_cast<std::size_t>(i)];
      SCOPED_TRACE(page.onglet);
      const QWidget& contenu = Contenu(i + 1);
      EXPECT_EQ(onglets.tabText(i), page.onglet);
      EXPECT_EQ(onglets.tabToolTip(i), Fr(page.infobulle));
      EXPECT_EQ(Texte(Trouve(contenu, "Label1")), Fr(page.entete));
      EXPECT_EQ(Trouve(contenu, "Image1").toolTip(), Fr(page.logo));
      EXPECT_EQ(contenu.property("sujetAide").toString(), page.sujet);
    }
  }

  /// Every page has a picture in its logo band.
  void AttendLogos() {
    for (int onglet = 1; onglet <= NombreDePages(); ++onglet) {
      EXPECT_FALSE(Trouve<QLabel>(Contenu(onglet), "Image1").pixmap().isNull()) << onglet;
    }
  }
  /// The lines in the logo bands, page by page; those that aren't there are left out.
  QStringList LignesDuLogo() {
    QStringList lignes;
    for (int onglet = 1; onglet <= NombreDePages(); ++onglet) {
      const QWidget& page = Contenu(onglet);
      for (const auto* ligne : page.findChildren<QLabel*>("lblLigneLogo")) {
        lignes << ligne->text();
      }
    }
    return lignes;
  }

  void AttendControles(std::initializer_list<ControleAttendu> controles) {
    for (const ControleAttendu& controle : controles) {
      const QWidget& widget = this->Le(controle.nom);
      EXPECT_EQ(LegendeDe(widget), Fr(controle.legende)) << controle.nom;
      EXPECT_EQ(widget.toolTip(), Fr(controle.infobulle)) << controle.nom;
    }
  }

  /// Buttons and options: what stands on them, without the mark of the access key, and the tooltip.
  void AttendBoutons(std::initializer_list<ControleAttendu> boutons) {
    for (const ControleAttendu& bouton : boutons) {
      const QWidget& widget = this->Le(bouton.nom);
      EXPECT_EQ(Texte(widget).remove(u'&'), Fr(bouton.legende)) << bouton.nom;
      EXPECT_EQ(widget.toolTip(), Fr(bouton.infobulle)) << bouton.nom;
    }
  }

  void AttendInfobulles(std::initializer_list<std::pair<const char*, const char*>> infobulles) {
    for (const auto& [nom, infobulle] : infobulles) {
      EXPECT_EQ(this->Le(nom).toolTip(), Fr(infobulle)) << nom;
    }
  }

  /// The caption whose access key leads to a control, without the mark of that key.
  QString LegendeDe(const QWidget& widget) {
    for (const QLabel* etiquette : this->fenetre->template findChildren<QLabel*>()) {
      if (etiquette->buddy() == &widget) {
        return etiquette->text().remove(u'&');
      }
    }
    return {};
  }

 private:
  int NombreDePages() { return this->template Le<QTabBar>("TabStrip1").count(); }
  QWidget& Contenu(int onglet) {
    return this->Le(("Frame1(" + std::to_string(onglet) + ")").c_str());
  }
};

}  // namespace gastrelle::essai
