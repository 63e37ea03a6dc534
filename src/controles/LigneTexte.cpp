#include "controles/LigneTexte.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMenu>

#include "controles/Conversion.h"

namespace gastrelle {
namespace {

constexpr int sansLimiteQt = 32767;

/// What a pasted text is in a box of one line: its line breaks and tabs are blanks.
QString UneLigne(QString texte) {
  for (const char16_t separateur : {u'\r', u'\n', u'\t', u'\x2028', u'\x2029'}) {
    texte.replace(QChar(separateur), QChar(u' '));
  }
  return texte;
}

}  // namespace

LigneTexte::LigneTexte(const QString& nom, int limite, QWidget* parent)
    : QLineEdit(parent), limite_(limite > 0 ? limite : sansLimiteQt) {
  setObjectName(nom);
  setMaxLength(limite_);
  connect(this, &QLineEdit::textEdited, this, [this](const QString& saisi) { Corrige(saisi); });
}

void LigneTexte::PoseTexte(std::string_view texte) {
  setMaxLength(std::max(limite_, static_cast<int>(texte.size())));
  setText(VersQt(texte));
  setCursorPosition(0);
}

std::string LigneTexte::Texte() const {
  return DepuisQt(text());
}

void LigneTexte::RendLectureSeule() {
  setReadOnly(true);
}

void LigneTexte::Insere(const QString& texte) {
  insert(texte.normalized(QString::NormalizationForm_C));
}

void LigneTexte::paste() {
  Insere(QApplication::clipboard()->text());
}

void LigneTexte::keyPressEvent(QKeyEvent* touche) {
  if (touche->matches(QKeySequence::Paste) && !isReadOnly()) {
    paste();
  } else {
    QLineEdit::keyPressEvent(touche);
  }
}

void LigneTexte::contextMenuEvent(QContextMenuEvent* evenement) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (QAction* action : menu->actions()) {
    if (action->text().section(u'\t', 0, 0) == QLineEdit::tr("&Paste")) {
      action->disconnect(this);
      connect(action, &QAction::triggered, this, &LigneTexte::paste);
    }
  }
  menu->popup(evenement->globalPos());
}

void LigneTexte::mouseReleaseEvent(QMouseEvent* evenement) {
  if (evenement->button() == Qt::MiddleButton && !isReadOnly()) {
    deselect();
    Insere(QApplication::clipboard()->text(QClipboard::Selection));
  } else {
    QLineEdit::mouseReleaseEvent(evenement);
  }
}

void LigneTexte::Corrige(const QString& saisi) {
  bool perte = false;
  const QString garde = UneLigne(Acceptable(saisi, perte));
  if (perte) {
    QApplication::beep();
  }
  if (garde != saisi) {
    bool ignoree = false;
    const auto curseur = Acceptable(saisi.left(cursorPosition()), ignoree).size();
    selectAll();
    insert(garde);
    setCursorPosition(static_cast<int>(curseur));
  }
}

}  // namespace gastrelle
