// The buttons of pages and dialogs, and the row of them at a page's foot.
#pragma once

#include <functional>

#include <QHBoxLayout>
#include <QPushButton>

namespace gastrelle {

/// A button with its name, caption, picture (none: empty) and tooltip, which screen readers say.
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

  QPushButton* Valide(const char* nom, const char16_t* infobulle, const Action& action) {
    return Ajoute(nom, u"&Valider", "valider", infobulle, action);
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
  /// Shows what is selected in a list.
  QPushButton* Affiche(const char* nom, const char16_t* infobulle, const Action& action) {
    return Ajoute(nom, u"Affi&cher", "afficher", infobulle, action);
  }
  QPushButton* Aide(const char* nom);
  /// Any other button.
  QPushButton* Ajoute(const char* nom, const char16_t* titre, const char* icone,
                      const char16_t* infobulle, const Action& action);
};

}  // namespace gastrelle
