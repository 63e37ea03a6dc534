// The frame: menus, toolbar and status bar that serve the child windows, and the end of the
// program.
#pragma once

#include <functional>

#include <QDialog>
#include <QMainWindow>
#include <QMdiArea>

#include "controles/Cadre.h"
#include "data/Module1.h"
#include "data/Vues.h"
#include "plateforme/Clavier.h"
#include "shell/Aide.h"
#include "shell/BarreStatut.h"
#include "shell/BarresCadre.h"
#include "shell/FenetresCadre.h"
#include "shell/GeometrieCadre.h"
#include "sortie/Envoi.h"

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
  /// What windows and memory hold alone is written before: the work that begins may end the
  /// program.
  void Decharge(EntreeVue derniere) override;
  void AnnonceRecettesChangees() override;

  /// Writes to the disk what only the windows and the memory hold: notes, aisle texts. Nothing is
  /// closed or asked, and it may be called again. After a failure that ends the program, or once
  /// the frame's own closing has written, nothing is done.
  void Enregistre();
  /// Ends the process as closing the frame does, but for the windows, which nobody sees close, and
  /// for the backup, whose dialog nobody would answer. Whatever the program is waiting in, a dialog
  /// or a message, isn't gone back to. Status 0, or 1 after a failure that ends the program.
  [[noreturn]] void Arrete();

  /// Runs once the frame is closed and the last copy made.
  std::function<void()> surFin;

 protected:
  void closeEvent(QCloseEvent* evenement) override;
  bool event(QEvent* evenement) override;

 private:
  void BrancheCommandes();
  void BrancheFenetres();
  void Bascule(const char* entree, QWidget& barre);
  /// Shows a dialog until it is left; the keyboard then comes back to the frame. What its `exec`
  /// answers.
  int Ouvre(QDialog&& dialogue);
  /// Shows a dialog that may replace the recipes; their window is then shown anew.
  void Maintient(QDialog&& dialogue);
  void Cherche();
  void OuvreAide();
  void RetientPlace() const;
  [[nodiscard]] QWidget* ControleEnUsage() const;
  void Imprime();
  void Envoie(Extension extension);
  [[nodiscard]] Vue VueAffichee() const;
  [[nodiscard]] std::string ImageAffichee() const;

  Module1& module_;
  QMdiArea* enfants_;
  BarresCadre barres_;
  BarreStatut* statut_;
  FenetresCadre fenetres_;
  GeometrieCadre geometrie_;
  Aide aide_;
  bool fermee_ = false;
  bool ecrite_ = false;  ///< the closing has written all there is to write
};

}  // namespace gastrelle
