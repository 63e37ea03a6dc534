#include "doublures/Ecran.h"

#include <utility>

#include <QHelpEvent>
#include <QPointer>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>

#include "doublures/Lettres.h"

namespace gastrelle::essai {
namespace {

QStringList TextesDe(const QAbstractItemModel& modele) {
  QStringList textes;
  for (int i = 0; i < modele.rowCount(); ++i) {
    textes << modele.index(i, 0).data().toString();
  }
  return textes;
}

QWidget* AuClavier() {
  QWidget* ouverte = QApplication::activePopupWidget();
  if (ouverte == nullptr) {
    return QApplication::focusWidget();
  }
  return ouverte->focusWidget() != nullptr ? ouverte->focusWidget() : ouverte;
}

}  // namespace

QStringList Textes(const QComboBox& liste) {
  return TextesDe(*liste.model());
}

QStringList Textes(const QAbstractItemView& liste) {
  return TextesDe(*liste.model());
}

std::vector<int> DonneesDe(const QComboBox& liste) {
  std::vector<int> donnees;
  for (int i = 0; i < liste.count(); ++i) {
    donnees.push_back(liste.itemData(i).toInt());
  }
  return donnees;
}

void Choisit(QComboBox& liste, const QString& texte) {
  const int indice = liste.findText(texte, Qt::MatchExactly);
  ASSERT_GE(indice, 0) << texte.toStdString();
  Choisit(liste, indice);
}

void Choisit(QComboBox& liste, int indice) {
  ASSERT_TRUE(liste.isEnabled());
  ASSERT_TRUE(liste.isVisible());
  QTest::mouseClick(&liste, Qt::LeftButton);
  QAbstractItemView* vue = liste.view();
  ASSERT_TRUE(vue->isVisible());
  const QModelIndex entree = liste.model()->index(indice, 0);
  vue->scrollTo(entree);
  // The list ignores the release of the click that opened it.
  QTest::mouseMove(vue->viewport(), vue->visualRect(entree).center());
  QTest::qWait(3 * QApplication::doubleClickInterval());
  QTest::mouseClick(vue->viewport(), Qt::LeftButton, {}, vue->visualRect(entree).center());
}

void Clique(QWidget& controle) {
  ASSERT_TRUE(controle.isVisible()) << controle.objectName().toStdString();
  ASSERT_TRUE(controle.isEnabled()) << controle.objectName().toStdString();
  QTest::mouseClick(&controle, Qt::LeftButton);
}

void CliqueOnglet(const QWidget& fenetre, int onglet) {
  auto& onglets = Trouve<QTabBar>(fenetre, "TabStrip1");
  ASSERT_LE(onglet, onglets.count());
  QTest::mouseClick(&onglets, Qt::LeftButton, {}, onglets.tabRect(onglet - 1).center());
}

void Tape(QWidget& boite, const QString& texte) {
  ASSERT_TRUE(boite.isEnabled()) << boite.objectName().toStdString();
  FrappeTexte(boite, texte);
}

void Remplace(QWidget& boite, const QString& texte) {
  QTest::keyClick(&boite, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&boite, Qt::Key_Delete);
  Tape(boite, texte);
}

void Frappe(Qt::Key touche, Qt::KeyboardModifiers avec) {
  QWidget* clavier = AuClavier();
  ASSERT_NE(clavier, nullptr);
  QTest::keyClick(clavier, touche, avec);
}

void Frappe(const QString& lettres) {
  for (const QChar lettre : lettres) {
    QWidget* clavier = AuClavier();
    ASSERT_NE(clavier, nullptr);
    QTest::sendKeyEvent(QTest::Click, clavier, Qt::Key_unknown, QString(lettre), Qt::NoModifier);
  }
}

void Roule(QWidget& controle, int crans) {
  const QPoint milieu = controle.rect().center();
  QWheelEvent roule(milieu, controle.mapToGlobal(milieu), {},
                    QPoint(0, crans * QWheelEvent::DefaultDeltasPerStep), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&roule);  // only such a one passes on to what lies behind
  qApp->notify(&controle, &roule);
}

QString Infobulle(QWidget& controle, const QPoint& ou) {
  QToolTip::hideText();
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
  QHelpEvent repos(QEvent::ToolTip, ou, controle.mapToGlobal(ou));
  QApplication::sendEvent(&controle, &repos);
  return QToolTip::isVisible() ? QToolTip::text() : QString();
}

void AvecDialogue(const std::function<void()>& ouvre,
                  const std::function<void(QDialog&)>& regarde) {
  bool vu = false;
  QTimer guet;
  QObject::connect(&guet, &QTimer::timeout, [&] {
    const QPointer dialogue = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialogue == nullptr || std::exchange(vu, true)) {
      return;
    }
    guet.stop();
    regarde(*dialogue);
    if (dialogue != nullptr && dialogue->isVisible()) {
      dialogue->reject();
    }
  });
  guet.start(0);
  ouvre();
  EXPECT_TRUE(vu) << "aucun dialogue";
}

QString Texte(const QWidget& controle) {
  return TexteVu(controle).value_or(controle.property("text").toString());
}

QString Fr(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace gastrelle::essai
