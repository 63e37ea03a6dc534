// A text box of either kind on the screen, with the gestures of its tests.
#pragma once

#include <memory>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>
#include <gtest/gtest.h>

#include "controles/BoitesTexte.h"
#include "controles/Conversion.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {

/// Both kinds of boxes are driven alike.
template <class Boite>
class Boites : public testing::Test {
 protected:
  void Montre(int limite) {
    boite = std::make_unique<Boite>("txtEssai", limite, nullptr);
    boite->show();
    boite->setFocus();
  }
  void Colle(const QString& texte) {
    QApplication::clipboard()->setText(texte);
    boite->paste();
  }
  bool ColleParLeMenu() { return ChoisitAuMenu("Coller"); }
  /// A right click, then a click on an entry, by how it begins. False if it can't be chosen.
  bool ChoisitAuMenu(const QString& entree) {
    const QPoint ou(5, 5);
    QContextMenuEvent clicDroit(QContextMenuEvent::Mouse, ou, boite->mapToGlobal(ou));
    auto* cible = boite->template findChild<QWidget*>("qt_scrollarea_viewport");
    QApplication::sendEvent(cible == nullptr ? boite.get() : cible, &clicDroit);
    auto& menu = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
    bool permise = false;
    for (QAction* action : menu.actions()) {
      if (action->text().remove(u'&').startsWith(entree)) {
        permise = action->isEnabled();
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
      }
    }
    menu.close();
    return permise;
  }
  void Annule() { QTest::keyClick(boite.get(), Qt::Key_Z, Qt::ControlModifier); }
  void Refait() {
    QTest::keyClick(boite.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  }
  void Vide() { VideBoites({{boite.get()}}); }

  std::unique_ptr<Boite> boite;
};

}  // namespace gastrelle::essai
