// Verbs on the real controls of a window, found by their names.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QWidget>
#include <gtest/gtest.h>

#include "data/Module1.h"

namespace gastrelle::essai {

/// The control of that name; a missing one fails the test and throws.
template <class Controle = QWidget>
Controle& Trouve(const QObject& parmi, const char* nom) {
  auto* controle = parmi.findChild<Controle*>(QString::fromUtf8(nom));
  if (controle == nullptr) {
    throw std::runtime_error(std::string("pas de contrôle ") + nom);
  }
  return *controle;
}

/// The texts of a list, in order.
QStringList Textes(const QComboBox& liste);
QStringList Textes(const QAbstractItemView& liste);
/// The item data of a list, in order.
std::vector<int> DonneesDe(const QComboBox& liste);

/// Chooses an entry with the mouse: opens the list, clicks the entry.
void Choisit(QComboBox& liste, const QString& texte);
void Choisit(QComboBox& liste, int indice);

/// A click in the middle of a control; a hidden or disabled one fails the test.
void Clique(QWidget& controle);
/// A click on a tab, counted from 1.
void CliqueOnglet(const QWidget& fenetre, int onglet);
/// Types a text with the keyboard, after what is there.
void Tape(QWidget& boite, const QString& texte);
/// Replaces a box's text with the keyboard.
void Remplace(QWidget& boite, const QString& texte);

/// A key, or letters one after the other, to whatever has the keyboard at that moment: an open
/// list, or the control in focus.
void Frappe(Qt::Key touche, Qt::KeyboardModifiers avec = Qt::NoModifier);
void Frappe(const QString& lettres);
/// Turns the wheel over the middle of a control, by notches: upwards, or downwards if negative.
void Roule(QWidget& controle, int crans);
/// What the pointer says when it rests there; empty: nothing.
QString Infobulle(QWidget& controle, const QPoint& ou);

/// Text of a box, label or button as the user reads it.
QString Texte(const QWidget& controle);

/// Runs `ouvre`, which opens a modal dialog, and `regarde` on that dialog while it is on the
/// screen. One that is still there afterwards is closed; none at all fails the test.
void AvecDialogue(const std::function<void()>& ouvre, const std::function<void(QDialog&)>& regarde);

/// A text written here in UTF-8.
QString Fr(std::string_view utf8);

/// The fatal or normal end that an event brought, if any: the test's application keeps it.
std::optional<int> FinVue();
void OublieFin();

}  // namespace gastrelle::essai
