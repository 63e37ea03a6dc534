// The buttons of pages and dialogs, and the row of them at a page's foot.
#pragma once

#include <functional>

#include <QHBoxLayout>
#include <QPushButton>

namespace gastrelle {

/// A button with its name, caption, picture (none: empty) and tooltip. Screen readers say the
/// caption, then the tooltip.
/// Return presses the one that has the focus, on a page as in a dialog.
QPushButton* Bouton(const QString& nom, const QString& titre, const QString& icone,
                    const QString& infobulle, QWidget* parent);

/// A help button: its click sends the help key.
QPushButton* BoutonAide(const QString& nom, QWidget* parent);

/// The row of buttons at the foot of a page or of a window, at its right end: one verb a button,
/// the same words and pictures everywhere. The buttons become children of the widget that the row
/// is laid out in. Names are `objectName`s.
class PiedBoutons final : public QHBoxLayout {
 public:
  using Action = std::function<void()>;

  PiedBoutons();

  /// Ctrl+Return anywhere on the page presses it as well, also from inside a text.
  QPushButton* Valide(const char* nom, const char16_t* infobulle, const Action& action) {
    return AjouteConclusion(nom, u"&Valider", "valider", infobulle, action);
  }
  QPushButton* Efface(const char* nom, const Action& action) {
    return Ajoute(nom, u"Effa&cer", "effacer", u"Effacer toutes les saisies", action);
  }
  QPushButton* Reinitialise(const char* nom, const Action& action) {
    return Ajoute(nom, u"Ré&initialiser", "reinitialiser", u"Réinitialiser", action);
  }
  QPushButton* Supprime(const char* nom, const char16_t* infobulle, const Action& action) {
    return Ajoute(nom, u"&Supprimer", "supprimer", infobulle, action);
  }
  /// Shows what is selected in a list. Ctrl+Return as for `Valide`.
  QPushButton* Affiche(const char* nom, const char16_t* infobulle, const Action& action) {
    return AjouteConclusion(nom, u"Affi&cher", "afficher", infobulle, action);
  }
  QPushButton* Aide(const char* nom);
  /// Any other button.
  QPushButton* Ajoute(const char* nom, const char16_t* titre, const char* icone,
                      const char16_t* infobulle, const Action& action);

 private:
  /// A button at the end of the row. With the first one Ctrl+Return becomes the page's own key.
  QPushButton* Pose(QPushButton* bouton);
  /// The button that ends what is done on the page, which Ctrl+Return presses.
  QPushButton* AjouteConclusion(const char* nom, const char16_t* titre, const char* icone,
                                const char16_t* infobulle, const Action& action);

  bool aSaTouche_ = false;
  QPushButton* conclusion_ = nullptr;
};

}  // namespace gastrelle
