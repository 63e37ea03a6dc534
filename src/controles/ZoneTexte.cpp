#include "controles/ZoneTexte.h"

#include <algorithm>

#include <QApplication>
#include <QTextBlock>
#include <QTextCursor>

#include "controles/Conversion.h"

namespace gastrelle {
namespace {

/// A foreign file may hold a line feed or a carriage return alone: they break no line as CR LF
/// does, and come back as they were. On the screen these stand for them.
constexpr QChar lfSeul{QChar::LineSeparator};
constexpr QChar crSeul{u'\x85'};

bool EstFinDeLigne(QChar c) {
  return c == QChar::ParagraphSeparator || c == lfSeul || c == crSeul;
}

QString Montrable(std::string_view texte) {
  return VersQt(texte)
      .replace(QStringLiteral("\r\n"), QString(QChar::ParagraphSeparator))
      .replace(QChar(u'\n'), lfSeul)
      .replace(QChar(u'\r'), crSeul);
}

/// The text of a document with CR LF between its lines: no-break spaces stay what they are.
QString TexteBrut(const QTextDocument& document) {
  return document.toRawText()
      .replace(lfSeul, QChar(u'\n'))
      .replace(crSeul, QChar(u'\r'))
      .replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
}

/// Length as stored: a line break is two characters.
qsizetype LongueurRangee(const QTextDocument& document) {
  return document.characterCount() - 1 + document.blockCount() - 1;
}

}  // namespace

ZoneTexte::ZoneTexte(const QString& nom, int limite, QWidget* parent)
    : QPlainTextEdit(parent), limite_(limite) {
  setObjectName(nom);
  setProperty("maxLength", limite);
  setTabChangesFocus(true);
  connect(document(), &QTextDocument::contentsChange, this, [this](int ou, int, int ajoutes) {
    debutSaisie_ = ou;
    finSaisie_ = ou + ajoutes;
  });
  connect(this, &QPlainTextEdit::textChanged, this, [this] { Corrige(); });
}

void ZoneTexte::PoseTexte(std::string_view texte) {
  parCode_ = true;
  setPlainText(Montrable(texte));
  parCode_ = false;
}

std::string ZoneTexte::Texte() const {
  return DepuisQt(TexteBrut(*document()));
}

void ZoneTexte::RendLectureSeule() {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void ZoneTexte::Corrige() {
  // What is undone brings back what was right before.
  if (parCode_ || finSaisie_ <= debutSaisie_ || document()->isRedoAvailable()) {
    return;
  }
  parCode_ = true;
  // A combining accent composes with the letter before it.
  const bool apresUneLettre =
      debutSaisie_ > 0 && !EstFinDeLigne(document()->characterAt(debutSaisie_ - 1));
  CorrigePassage(apresUneLettre ? debutSaisie_ - 1 : debutSaisie_,
                 std::min(finSaisie_, document()->characterCount() - 1));
  parCode_ = false;
}

void ZoneTexte::CorrigePassage(int debut, int fin) {
  QTextCursor passage(document());
  passage.setPosition(debut);
  passage.setPosition(fin, QTextCursor::KeepAnchor);
  // selectedText turns no line into "\n": paragraphs stay paragraph separators.
  QString saisi = passage.selectedText();
  const QString avant = saisi;
  saisi.replace(QChar::ParagraphSeparator, QChar(u'\n'))
      .replace(lfSeul, QChar(u'\n'))
      .replace(crSeul, QChar(u'\n'));
  bool perte = false;
  QString garde = Acceptable(saisi, perte);
  const qsizetype trop =
      limite_ > 0 ? LongueurRangee(*document()) - limite_ - (saisi.size() - garde.size()) : 0;
  bool coupe = false;
  for (qsizetype reste = trop; reste > 0 && !garde.isEmpty(); coupe = true) {
    reste -= garde.back() == u'\n' ? 2 : 1;
    garde.chop(1);
  }
  if (perte || coupe) {
    QApplication::beep();
  }
  if (garde != QString(avant).replace(QChar::ParagraphSeparator, QChar(u'\n'))) {
    passage.joinPreviousEditBlock();
    passage.insertText(garde);
    passage.endEditBlock();
    setTextCursor(passage);
  }
}

}  // namespace gastrelle
