// The frame: menus, toolbar and status bar that serve the child windows, and the end of the
// program.
#pragma once

#include <functional>

#include <QMainWindow>
#include <QMdiArea>

#include "controles/Cadre.h"
#include "data/Module1.h"
#include "plateforme/Clavier.h"
#include "shell/Aide.h"
#include "shell/BarreStatut.h"
#include "shell/BarresCadre.h"
#include "shell/FenetresCadre.h"
#include "shell/GeometrieCadre.h"

namespace gastrelle {

class frmMain final : public QMainWindow, public Cadre {
 public:
  /// Takes its place from the settings store and opens the recipes window.
  frmMain(Module1& module, Clavier& clavier);
  ~frmMain() override;

  void PoseContexte(std::int16_t code) override;
  void QuitteContexte(EntreeVue vue) override;
  void Coche(EntreeVue vue) override;
  void PermetImage(bool permise) override;
  void MontreImage() override;

  /// Runs once the frame is closed and the last copy made.
  std::function<void()> surFin;

 protected:
  void closeEvent(QCloseEvent* evenement) override;
  bool event(QEvent* evenement) override;

 private:
  void BrancheCommandes();
  void BrancheFenetres();
  void Bascule(const char* entree, QWidget& barre);
  void SuiteMaintenance();
  void OuvreAide();
  [[nodiscard]] QWidget* ControleEnUsage() const;
  [[nodiscard]] std::string ImageAffichee() const;

  Module1& module_;
  QMdiArea* enfants_;
  BarresCadre barres_;
  BarreStatut* statut_;
  FenetresCadre fenetres_;
  GeometrieCadre geometrie_;
  Aide aide_;
  bool fermee_ = false;
};

}  // namespace gastrelle
