#include "promenade/Gestes.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QTabBar>
#include <QTest>

#include "doublures/Lettres.h"

namespace gastrelle::essai {
namespace {

void Exige(const QWidget& controle) {
  if (!EstUtilisable(&controle)) {
    throw GesteImpossible(QStringLiteral("%1 est %2")
                              .arg(controle.objectName(), controle.isVisible()
                                                              ? QStringLiteral("hors service")
                                                              : QStringLiteral("hors de vue")));
  }
}

QMenu& LeMenu(const QString& nom) {
  return Trouve<QMenu>(&LeCadre(), nom);
}

/// Leads the choice of a menu that is open to an entry that can be chosen.
QMenu& VaA(const QString& nomMenu, QAction& entree) {
  QMenu& menu = LeMenu(nomMenu);
  if (!menu.isVisible() || !menu.actions().contains(&entree) || !entree.isEnabled()) {
    throw GesteImpossible(QStringLiteral("rien à choisir dans ") + nomMenu);
  }
  menu.setActiveAction(&entree);
  return menu;
}

}  // namespace

QWidget* FenetreVue(const QString& nom) {
  for (QWidget* fenetre : QApplication::topLevelWidgets()) {
    if (fenetre->objectName() == nom && fenetre->isVisible()) {
      return fenetre;
    }
  }
  return nullptr;
}

QMainWindow& LeCadre() {
  auto* cadre = qobject_cast<QMainWindow*>(FenetreVue(QStringLiteral("frmMain")));
  if (cadre == nullptr) {
    throw GesteImpossible(QStringLiteral("le cadre n'est pas à l'écran"));
  }
  return *cadre;
}

QWidget* DialogueVu() {
  QWidget* dialogue = QApplication::activeModalWidget();
  return dialogue != nullptr && dialogue->isVisible() ? dialogue : nullptr;
}

QMessageBox* MessageVu() {
  return qobject_cast<QMessageBox*>(DialogueVu());
}

QWidget* EnfantVu(const QString& nom) {
  QWidget* enfant = Cherche(FenetreVue(QStringLiteral("frmMain")), nom);
  return enfant != nullptr && enfant->isVisible() ? enfant : nullptr;
}

bool EstUtilisable(const QWidget* controle) {
  return controle != nullptr && controle->isVisible() && controle->isEnabled();
}

void Clique(QWidget& controle) {
  Exige(controle);
  QTest::mouseClick(&controle, Qt::LeftButton);
}

void CliqueOnglet(const QWidget* fenetre, int onglet) {
  auto& onglets = Trouve<QTabBar>(fenetre, QStringLiteral("TabStrip1"));
  Exige(onglets);
  QTest::mouseClick(&onglets, Qt::LeftButton, {}, onglets.tabRect(onglet - 1).center());
}

void CliqueRangee(QWidget& liste, int rangee) {
  Exige(liste);
  auto& vue = dynamic_cast<QAbstractItemView&>(liste);
  const QModelIndex entree = vue.model()->index(rangee, 0);
  vue.scrollTo(entree);
  QTest::mouseClick(vue.viewport(), Qt::LeftButton, {}, vue.visualRect(entree).center());
}

void Coche(QWidget& option) {
  Frappe(option, Qt::Key_Space);
  if (!dynamic_cast<QAbstractButton&>(option).isChecked()) {
    throw GesteImpossible(option.objectName() + QStringLiteral(" ne se coche pas"));
  }
}

void Frappe(QWidget& controle, Qt::Key touche, Qt::KeyboardModifiers avec) {
  Exige(controle);
  QTest::keyClick(&controle, touche, avec);
}

void Tape(QWidget& boite, const QString& texte) {
  Exige(boite);
  FrappeTexte(boite, texte);
}

void Remplace(QWidget& boite, const QString& texte) {
  Frappe(boite, Qt::Key_A, Qt::ControlModifier);
  Frappe(boite, Qt::Key_Delete);
  Tape(boite, texte);
}

void DerouleMenu(const QString& menu) {
  const QMenu& voulu = LeMenu(menu);
  if (!voulu.isEnabled()) {
    throw GesteImpossible(menu + QStringLiteral(" est hors service"));
  }
  LeCadre().menuBar()->setActiveAction(voulu.menuAction());
}

void ChoisitEntree(const QString& menu, const QString& entree) {
  QMenu& deroule = VaA(
      menu, *[&] {
        auto* action = LeCadre().findChild<QAction*>(entree);
        if (action == nullptr) {
          throw GesteImpossible(QStringLiteral("pas d'entrée ") + entree);
        }
        return action;
      }());
  QTest::keyClick(&deroule, Qt::Key_Return);
}

void DerouleSousMenu(const QString& menu, const QString& sousMenu) {
  QTest::keyClick(&VaA(menu, *LeMenu(sousMenu).menuAction()), Qt::Key_Right);
}

bool EstDeroule(const QString& menu) {
  return LeMenu(menu).isVisible();
}

void Repond(const QString& bouton) {
  const QMessageBox* message = MessageVu();
  if (message == nullptr) {
    throw GesteImpossible(QStringLiteral("aucun message"));
  }
  for (QAbstractButton* sien : message->buttons()) {
    if (sien->text().remove(u'&') == bouton) {
      Clique(*sien);
      return;
    }
  }
  throw GesteImpossible(QStringLiteral("le message n'a pas de bouton ") + bouton);
}

QString Lu(const QWidget& controle) {
  if (auto texte = TexteVu(controle)) {
    return *texte;
  }
  throw GesteImpossible(controle.objectName() + QStringLiteral(" n'a pas de texte"));
}

}  // namespace gastrelle::essai
