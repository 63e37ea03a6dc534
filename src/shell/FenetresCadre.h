// The child windows of the frame: which there are, how they are made, shown, sized, listed and
// unloaded.
#pragma once

#include <functional>
#include <map>

#include <QMdiArea>
#include <QMenu>
#include <QPointer>

#include "controles/Cadre.h"
#include "controles/FenetreEnfant.h"
#include "data/Module1.h"
#include "shell/SuiviFenetres.h"

namespace gastrelle {

/// The entry of the view menu that opens a window.
[[nodiscard]] const char* NomEntree(EntreeVue vue);

class FenetresCadre {
 public:
  /// The windows live in `place`; each bears the picture of its button.
  FenetresCadre(Module1& module, Cadre& cadre, QMdiArea& place);

  /// Shows a window and brings it to the front, unless it is the active one already; makes it first
  /// if it isn't there.
  void Montre(EntreeVue vue);
  /// The same, the window then being maximised.
  void MontreMaximisee(EntreeVue vue);
  /// Gives a minimised window its size back.
  void Deplie(EntreeVue vue);
  /// Unloads the windows up to that one, in the order of the view menu; all if it isn't told.
  void Decharge(EntreeVue derniere = EntreeVue::mesCourses);
  /// Has all windows write what they would when they are unloaded, in the same order. They stay as
  /// they are, to the place of the cursor.
  void EnregistreTout();
  /// Writes the open windows behind the entries of a menu, in the place of those written before.
  void Enumere(QMenu& menu);
  /// The window that is active, or null.
  [[nodiscard]] FenetreEnfant* active() const { return suivi_.active(); }
  /// The window that the context is about, or null: what is printed, sent or looked at is what this
  /// one shows. A minimised window may be active without having changed the context.
  [[nodiscard]] FenetreEnfant* EnContexte() const;

 private:
  [[nodiscard]] QMdiSubWindow* TrouveOuverte(EntreeVue vue) const;
  QMdiSubWindow& Cree(EntreeVue vue);
  /// Calls `fait` with every window that is there, hidden ones too, in the order of the view menu.
  void PourChacune(const std::function<void(EntreeVue, FenetreEnfant&)>& fait) const;
  void AppliqueTaille(EntreeVue vue, QMdiSubWindow& fenetre);
  void VaA(QMdiSubWindow& fenetre);

  Module1& module_;
  Cadre& cadre_;
  QMdiArea& place_;
  SuiviFenetres suivi_;
  std::map<EntreeVue, QPointer<QWidget>> ouvertes_;
};

}  // namespace gastrelle
