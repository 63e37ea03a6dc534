// What a user's hands and eyes do: windows and controls found by their names, real events of the
// mouse and the keyboard. Knows nothing of the program but those names.
#pragma once

#include <stdexcept>

#include <QComboBox>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QString>
#include <QWidget>

namespace gastrelle::essai {

/// Ends the walk; the text says what is missing.
class GesteImpossible final : public std::runtime_error {
 public:
  explicit GesteImpossible(const QString& pourquoi) : std::runtime_error(pourquoi.toStdString()) {}
};

/// A top-level window that is on the screen; null if there is none of that name.
QWidget* FenetreVue(const QString& nom);
/// The frame. Throws if it isn't on the screen.
QMainWindow& LeCadre();
/// The dialog that has the program to itself; null if there is none.
QWidget* DialogueVu();
/// The message that is on the screen; null if there is none.
QMessageBox* MessageVu();

/// A control by its name, null if there is none.
template <class Controle = QWidget>
Controle* Cherche(const QWidget* parmi, const QString& nom) {
  return parmi == nullptr ? nullptr : parmi->findChild<Controle*>(nom);
}
/// The same; throws if there is none.
template <class Controle = QWidget>
Controle& Trouve(const QWidget* parmi, const QString& nom) {
  auto* controle = Cherche<Controle>(parmi, nom);
  if (controle == nullptr) {
    throw GesteImpossible(QStringLiteral("pas de contrôle ") + nom);
  }
  return *controle;
}

/// A window inside the frame that can be seen; null if it isn't open.
QWidget* EnfantVu(const QString& nom);
/// True if a control is there and takes the mouse and the keyboard.
bool EstUtilisable(const QWidget* controle);

/// These throw on a control that can't be used.
void Clique(QWidget& controle);
/// A click on a tab, counted from 1.
void CliqueOnglet(const QWidget* fenetre, int onglet);
/// A click on a row of a list, counted from 0.
void CliqueRangee(QWidget& liste, int rangee);
/// Chooses an option by the space bar: where a click hits depends on the letters' width.
void Coche(QWidget& option);
void Frappe(QWidget& controle, Qt::Key touche, Qt::KeyboardModifiers avec = Qt::NoModifier);
/// Types a text behind what is there; its lines are ended by the return key.
void Tape(QWidget& boite, const QString& texte);
/// Types a text in the place of what is there.
void Remplace(QWidget& boite, const QString& texte);

/// Opens a menu of the frame's bar.
void DerouleMenu(const QString& menu);
/// Chooses an entry of a menu that is open by the return key.
void ChoisitEntree(const QString& menu, const QString& entree);
/// Opens a submenu of a menu that is open.
void DerouleSousMenu(const QString& menu, const QString& sousMenu);
bool EstDeroule(const QString& menu);

/// Presses the button of the message that bears this title.
void Repond(const QString& bouton);

/// The text of a box or a label, whose lines end in "\n".
QString Lu(const QWidget& controle);

}  // namespace gastrelle::essai
