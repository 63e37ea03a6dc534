// The help window: contents or search results at the left, the page at the right.
#pragma once

#include <optional>

#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QSplitter>
#include <QStackedWidget>
#include <QStringList>
#include <QToolBar>
#include <QTreeWidget>
#include <QUrl>

#include "shell/FichierAide.h"
#include "shell/LecteurAide.h"
#include "shell/RechercheAide.h"

namespace gastrelle {

class frmAide final : public QMainWindow {
 public:
  /// `fichier` outlives the window.
  explicit frmAide(const FichierAide& fichier);

  /// Gives the window its first size and, beside the program's window (null: none is there), its
  /// first place.
  void PlaceAupresDe(const QWidget* programme);
  /// Shows a page that was asked for, at the first of the named paragraphs that it has: a search
  /// that stands is over. A topic that the help doesn't hold shows its first page.
  void Montre(const QString& sujet, const QStringList& paragraphes = {});

 protected:
  /// From the search box down to what it found, and back.
  bool eventFilter(QObject* objet, QEvent* evenement) override;
  void keyPressEvent(QKeyEvent* evenement) override;
  void showEvent(QShowEvent* evenement) override;

 private:
  void BatitBarre();
  QWidget* BatitVolet();
  void RemplitSommaire();
  void Branche();
  QAction* Bouton(const char* nom, const QIcon& icone, const QString& titre,
                  const QKeySequence& touche);
  void MontrePage(const QString& sujet, const QString& paragraphe = {});
  void Cherche();
  void VaAuVolet();
  void OuvreResultat(const QListWidgetItem* entree);
  void SuitPage(const QUrl& adresse);
  void Surligne();
  [[nodiscard]] QList<QTextEdit::ExtraSelection> MotsTrouves() const;
  void VaAuPremierMot();

  const FichierAide& fichier_;
  std::optional<RechercheAide> recherche_;
  QString paragraphe_;  ///< of the page on display, the one that was asked for
  QToolBar* barre_;
  QLineEdit* txtRecherche_;
  QStackedWidget* volet_;
  QTreeWidget* treeSommaire_;
  QListWidget* lstResultats_;
  QSplitter* partage_;
  bool partagee_ = false;  ///< the window's width is shared out
  LecteurAide* txtPage_;
};

}  // namespace gastrelle
