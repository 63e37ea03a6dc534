#include "controles/Boites.h"

#include <array>
#include <string>
#include <utility>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "controles/Conversion.h"

namespace gastrelle {
namespace {

constexpr std::array<std::pair<Icone, QMessageBox::Icon>, 4> icones{{
    {Icone::aucune, QMessageBox::NoIcon},
    {Icone::information, QMessageBox::Information},
    {Icone::exclamation, QMessageBox::Warning},
    {Icone::critique, QMessageBox::Critical},
}};

/// A message that is longer than any path of a system makes it has lost its middle: it would be
/// higher than the screen, its button below.
std::string Abrege(std::string_view texte) {
  constexpr std::size_t moitie = 2500;
  if (texte.size() <= 2 * moitie) {
    return std::string(texte);
  }
  std::string abrege(texte.substr(0, moitie));
  abrege += "…"_1252;
  abrege += texte.substr(texte.size() - moitie);
  return abrege;
}

void Prepare(QMessageBox& boite, std::string_view texte, Icone icone, std::string_view titre) {
  boite.setWindowTitle(VersQt(titre));
  boite.setTextFormat(Qt::PlainText);
  boite.setText(VersEcran(Abrege(texte)));
  for (const auto& [notre, sienne] : icones) {
    if (notre == icone) {
      boite.setIcon(sienne);
    }
  }
}

}  // namespace

void MessagesEcran::Informe(std::string_view texte, Icone icone, std::string_view titre) {
  QMessageBox boite(QApplication::activeWindow());
  Prepare(boite, texte, icone, titre);
  boite.addButton(QStringLiteral("&OK"), QMessageBox::AcceptRole);
  boite.exec();
}

Reponse MessagesEcran::Demande(std::string_view texte, Choix choix) {
  QMessageBox boite(QApplication::activeWindow());
  Prepare(boite, texte, Icone::exclamation, titreApplication);
  const QPushButton* oui = boite.addButton(QStringLiteral("&Oui"), QMessageBox::YesRole);
  QPushButton* non = boite.addButton(QStringLiteral("&Non"), QMessageBox::NoRole);
  QPushButton* sortie = non;
  if (choix == Choix::ouiNonAnnuler) {
    sortie = boite.addButton(QStringLiteral("&Annuler"), QMessageBox::RejectRole);
  }
  boite.setDefaultButton(non);
  boite.setEscapeButton(sortie);
  boite.exec();
  if (boite.clickedButton() == oui) {
    return Reponse::oui;
  }
  return boite.clickedButton() == non ? Reponse::non : Reponse::annuler;
}

void MessagesEcran::Bip() {
  QApplication::beep();
}

void PointeurEcran::Montre(Qt::CursorShape forme) {
  if (std::exchange(sablier_, true)) {
    QApplication::changeOverrideCursor(forme);
  } else {
    QApplication::setOverrideCursor(forme);
  }
}

void PointeurEcran::Normal() {
  if (std::exchange(sablier_, false)) {
    QApplication::restoreOverrideCursor();
  }
}

}  // namespace gastrelle
