// The base of every child window: what it owes the frame when it comes to the front, leaves it, is
// minimised or closed, and the refusals and questions of its operations.
#pragma once

#include <initializer_list>
#include <string_view>

#include <QWidget>

#include "controles/Cadre.h"
#include "data/Module1.h"
#include "data/Vues.h"

namespace gastrelle {

/// What is peculiar to a window, as data.
struct DescriptionFenetre {
  const char* nom;          ///< objectName
  const char16_t* titre;    ///< caption
  EntreeVue vue;            ///< its entry in the view menu
  const char* logo;         ///< picture of the logo band
  bool razReduite = false;  ///< resets the frame when it is minimised
  bool seCache = false;     ///< its close box hides it: the program alone unloads it
  QSize taille{116, 35};    ///< at first, at normal size: letters of mean width, lines
  QSize moindre{48, 10};    ///< the page scrolls
};

class FenetreEnfant : public QWidget {
 public:
  FenetreEnfant(Module1& module, Cadre& cadre, const DescriptionFenetre& description);

  /// The user or the program has switched to this window. Modal dialogs and other programs in front
  /// don't count as switching.
  virtual void Active();
  /// The user or the program has switched away from it.
  virtual void Desactive();
  /// The window has just been minimised in the frame.
  virtual void QuandReduite();

  /// What the window shows now.
  [[nodiscard]] virtual Vue VueCourante() const { return {}; }
  /// Puts away what is being typed. It is asked when the window is left, closed or unloaded, also
  /// twice in a row, and by whoever is going to print what the window shows.
  virtual void RangeSaisie() {}
  /// Hands over what nobody but the window holds, to the disk or to the shared state, and changes
  /// nothing on the screen. It is asked when the window is unloaded, and when the session ends or
  /// the program is stopped while it is there; it may be asked again.
  virtual void EnregistreSaisie() {}
  /// Shows a record, as a user who chooses it would. Raises error 53 if the window's list doesn't
  /// hold it.
  virtual void MontreEnregistrement(std::int32_t numero);

  /// Unloads the window on the program's own account, as opposed to its close box.
  void Decharge();

  [[nodiscard]] Module1& module() const { return module_; }
  [[nodiscard]] Cadre& cadre() const { return cadre_; }
  [[nodiscard]] const DescriptionFenetre& description() const { return description_; }

  /// A refusal: pointer to normal, the information message, the focus where the user has to act
  /// (null: the caller sees to it).
  void Refuse(std::string_view texte, QWidget* focus);
  /// A refusal with a beep before its message.
  void RefuseAvecBip(std::string_view texte, QWidget* focus);
  /// Empties text boxes, after a question if any of them holds text. False: the user gave up.
  bool EffaceSaisies(std::initializer_list<QWidget*> boites);

  /// The sizes of the description, or more if what was made so far needs more.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  /// Brings the frame into the state that the window wants.
  virtual void RegleCadre();
  /// Brings the frame into the state without this window.
  void RazCadre();

  void closeEvent(QCloseEvent* evenement) override;

 private:
  [[nodiscard]] bool EstReduite() const;
  /// The window in the frame that holds this one, or itself when it stands alone.
  [[nodiscard]] QWidget& Contour();
  [[nodiscard]] QSize Place(const QSize& etendue) const;

  Module1& module_;
  Cadre& cadre_;
  const DescriptionFenetre& description_;
  bool parProgramme_ = false;
};

}  // namespace gastrelle
