// The help key, which every help button of the program sends.
#pragma once

#include <QPushButton>

namespace gastrelle {

/// Property of a control, page or window: the topic that the help key opens for it and for whatever
/// lies inside it.
inline constexpr const char* proprieteSujet = "sujetAide";

/// Sends the key F1 to the control in focus.
void EnvoieF1();

/// A button of a page's foot.
QPushButton* Bouton(const QString& nom, const QString& titre, const QString& icone,
                    const QString& infobulle, QWidget* parent);

/// A help button: its click sends the key F1.
QPushButton* BoutonAide(const QString& nom, QWidget* parent);

}  // namespace gastrelle
