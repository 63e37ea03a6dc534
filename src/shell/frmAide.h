// The help window: contents or search results at the left, the page at the right.
#pragma once

#include <optional>

#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <QWidget>

#include "shell/FichierAide.h"
#include "shell/RechercheAide.h"

namespace gastrelle {

class frmAide final : public QWidget {
 public:
  /// `fichier` outlives the window.
  explicit frmAide(const FichierAide& fichier);

  /// Shows a page; a topic that the help doesn't hold shows its first page.
  void Montre(const QString& sujet);

 protected:
  void keyPressEvent(QKeyEvent* evenement) override;

 private:
  QToolBar* BatitBarre();
  QWidget* BatitVolet();
  void RemplitSommaire();
  void Branche();
  QAction* Bouton(const char* nom, const QIcon& icone, const QString& titre,
                  const QKeySequence& touche);
  void Cherche();
  void OuvreResultat(const QListWidgetItem* entree);
  void SuitPage(const QString& sujet);
  void Surligne();
  void VaAuPremierMot();

  const FichierAide& fichier_;
  std::optional<RechercheAide> recherche_;
  QToolBar* barre_;
  QLineEdit* txtRecherche_;
  QStackedWidget* volet_;
  QTreeWidget* treeSommaire_;
  QListWidget* lstResultats_;
  QTextBrowser* txtPage_;
};

}  // namespace gastrelle
