// The frame's menu bar and toolbar, built from their tables.
#pragma once

#include <functional>
#include <map>
#include <vector>

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>

#include "shell/EtatsCadre.h"

namespace gastrelle {

class BarresCadre {
 public:
  explicit BarresCadre(QMainWindow& cadre);

  /// What an entry does, and every button that stands for it. Here and below, a name that isn't in
  /// the tables raises std::invalid_argument.
  void SurCommande(const char* entree, std::function<void()> commande);

  /// Sets the entries and buttons of the pattern's columns.
  void Applique(const Motif& motif);
  void Permet(Colonne colonne, bool permise);

  [[nodiscard]] QAction& Entree(const char* nom) const;
  [[nodiscard]] QMenu& Menu(const char* nom) const;
  [[nodiscard]] QToolBar& barre() const { return *barre_; }

 private:
  void BatitMenus(QMainWindow& cadre);
  void BatitBarre(QMainWindow& cadre);
  void Execute(const QAction& entree) const;

  std::map<QString, QAction*> entrees_;
  std::map<QString, QMenu*> menus_;
  std::map<QString, QAction*> boutons_;
  std::map<const QAction*, std::function<void()>> commandes_;
  QToolBar* barre_;
};

}  // namespace gastrelle
