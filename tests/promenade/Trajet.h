// The steps of a walk, in their order, and the phrases that most of them are made of.
#pragma once

#include <functional>
#include <vector>

#include <QString>

namespace gastrelle::essai {

struct Etape {
  QString nom;
  /// How many earlier gestures are still under way: one for each dialog that the step works in.
  int profondeur = 0;
  /// Passed by when no dialog is there: what the system has decides whether one comes.
  bool facultative = false;
  std::function<bool()> prete;  ///< empty: at once
  std::function<void()> geste;  ///< empty: the step only waits
};

class Trajet {
 public:
  using Condition = std::function<bool()>;
  using Geste = std::function<void()>;

  void Attend(const QString& nom, Condition prete);
  void Fait(const QString& nom, Condition prete, Geste geste);
  void FaitSIlLeFaut(const QString& nom, Condition prete, Geste geste);
  /// The steps that `dedans` adds work in a dialog that the step before opens.
  void DansUnDialogue(const std::function<void()>& dedans);

  /// The button of a window inside the frame, or of the dialog (`fenetre` empty).
  void Clique(const QString& fenetre, const QString& bouton);
  void Coche(const QString& fenetre, const QString& option);
  void Tape(const QString& fenetre, const QString& boite, const QString& texte);
  void Remplace(const QString& fenetre, const QString& boite, const QString& texte);
  /// Goes to a tab by the mouse, counted from 1, and waits for its page.
  void VaALOnglet(const QString& fenetre, int onglet);
  /// Opens a drop-down list by the mouse and types until `attendu` is chosen.
  void Choisit(const QString& fenetre, const QString& liste, const QString& lettres,
               const QString& attendu);
  /// Chooses an entry of a menu, or of its submenu (may be empty).
  void Commande(const QString& menu, const QString& sousMenu, const QString& entree);
  /// Waits for a message that begins so, and presses its button.
  void Repond(const QString& debut, const QString& bouton);
  /// Takes a picture of what is on the screen.
  void Photographie(const QString& nom);

  [[nodiscard]] const std::vector<Etape>& etapes() const { return etapes_; }

 private:
  std::vector<Etape> etapes_;
  int profondeur_ = 0;
};

}  // namespace gastrelle::essai
