#include "controles/LigneTexte.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>

#include "controles/Conversion.h"

namespace gastrelle {
namespace {

constexpr int sansLimiteQt = 32767;

/// What a pasted text is in a box of one line: its line breaks and tabs are blanks.
QString UneLigne(QString texte) {
  for (const char16_t separateur : {u'\r', u'\n', u'\t'}) {
    texte.replace(QChar(separateur), QChar(u' '));
  }
  return texte;
}

struct Passage {
  int debut;
  int fin;
};

/// What of a text is new, given the text that it was before.
Passage Changement(const QString& avant, const QString& apres) {
  const qsizetype communs = std::min(avant.size(), apres.size());
  const auto debut = std::mismatch(apres.begin(), apres.begin() + communs, avant.begin()).first;
  const qsizetype reste = communs - (debut - apres.begin());
  const auto fin = std::mismatch(apres.rbegin(), apres.rbegin() + reste, avant.rbegin()).first;
  return {static_cast<int>(debut - apres.begin()), static_cast<int>(apres.rend() - fin)};
}

}  // namespace

LigneTexte::LigneTexte(const QString& nom, int limite, QWidget* parent)
    : QLineEdit(parent), limite_(limite > 0 ? limite : sansLimiteQt) {
  setObjectName(nom);
  setMaxLength(limite_);
  connect(this, &QLineEdit::textEdited, this, [this](const QString& saisi) { Corrige(saisi); });
  connect(this, &QLineEdit::textChanged, this, [this] { montre_ = text(); });
}

void LigneTexte::PoseTexte(std::string_view texte) {
  donne_ = VersQt(texte);
  setMaxLength(std::max(limite_, static_cast<int>(texte.size())));
  setText(donne_);
  setCursorPosition(0);
}

void LigneTexte::RemplaceTexte(std::string_view texte) {
  const bool tient = maxLength() == limite_ && static_cast<int>(texte.size()) <= limite_;
  if (!tient) {  // a change of the limit forgets what can be undone
    PoseTexte(texte);
    return;
  }
  donne_ = VersQt(texte);
  if (text() != donne_) {
    selectAll();
    insert(donne_);
    Separe();
  }
  setCursorPosition(0);
}

std::string LigneTexte::Texte() const {
  return DepuisQt(text());
}

void LigneTexte::RendLectureSeule() {
  setReadOnly(true);
}

void LigneTexte::RendChemin() {
  transcrit_ = Compose;
}

void LigneTexte::Insere(const QString& texte) {
  Separe();
  const int ou = hasSelectedText() ? selectionStart() : cursorPosition();
  const int debut = DebutLecture(ou, [this](int place) { return text().at(place); });
  const QString lu = text().mid(debut, ou - debut);
  const QString garde = Garde(lu + texte);
  if (garde.startsWith(lu)) {
    insert(garde.mid(lu.size()));
  } else {
    setSelection(debut, ou - debut + static_cast<int>(selectedText().size()));
    insert(garde);
  }
}

void LigneTexte::paste() {
  Insere(QApplication::clipboard()->text());
  Separe();
}

void LigneTexte::keyPressEvent(QKeyEvent* touche) {
  if (touche->matches(QKeySequence::Paste) && !isReadOnly()) {
    paste();
  } else if (!SeRange(touche->text()) && !isReadOnly()) {
    Insere(touche->text());
  } else {
    QLineEdit::keyPressEvent(touche);
  }
}

void LigneTexte::inputMethodEvent(QInputMethodEvent* evenement) {
  if (SeRange(evenement->commitString()) || isReadOnly()) {
    QLineEdit::inputMethodEvent(evenement);
    return;
  }
  QInputMethodEvent sansTexte(evenement->preeditString(), evenement->attributes());
  sansTexte.setCommitString({}, evenement->replacementStart(), evenement->replacementLength());
  QLineEdit::inputMethodEvent(&sansTexte);
  Insere(evenement->commitString());
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

QString LigneTexte::Garde(const QString& passage) const {
  const auto [texte, perte] = transcrit_(passage);
  if (perte) {
    QApplication::beep();
  }
  return UneLigne(texte);
}

void LigneTexte::Corrige(const QString& saisi) {
  const auto [nouveau, fin] = Changement(montre_, saisi);
  const int debut = DebutLecture(nouveau, [&](int place) { return saisi.at(place); });
  const QString passage = saisi.mid(debut, fin - debut);
  // What is undone brings back what was right before, and what is set from code is right.
  if (saisi == donne_ || (isRedoAvailable() && SeRange(passage))) {
    return;
  }
  const QString garde = Garde(passage);
  if (garde != passage) {
    setSelection(debut, fin - debut);
    insert(garde);
  }
}

void LigneTexte::Separe() {
  const int ou = cursorPosition();
  if (text().isEmpty()) {
    clear();
  } else if (!hasSelectedText()) {
    setCursorPosition(ou == 0 ? 1 : ou - 1);
    setCursorPosition(ou);
  }
}

}  // namespace gastrelle
