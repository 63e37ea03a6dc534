// What a text control shows, and how letters come to it: what the tests and the walk share.
#pragma once

#include <optional>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextDocument>

namespace gastrelle::essai {

/// The text on display in a box, a label or a list, its lines ended by "\n"; nothing for a control
/// of another sort.
[[nodiscard]] inline std::optional<QString> TexteVu(const QWidget& controle) {
  if (const auto* zone = qobject_cast<const QPlainTextEdit*>(&controle)) {
    return zone->document()->toRawText().replace(QChar::ParagraphSeparator, QChar(u'\n'));
  }
  if (const auto* ligne = qobject_cast<const QLineEdit*>(&controle)) {
    return ligne->text();
  }
  if (const auto* etiquette = qobject_cast<const QLabel*>(&controle)) {
    return etiquette->text();
  }
  if (const auto* liste = qobject_cast<const QComboBox*>(&controle)) {
    return liste->currentText();
  }
  return std::nullopt;
}

/// Presses the keys of a text, "\n" being the Enter key. The accents too come whole.
inline void FrappeTexte(QWidget& boite, const QString& texte) {
  for (const QChar lettre : texte) {
    if (lettre == u'\n') {
      QTest::keyClick(&boite, Qt::Key_Return);
    } else {
      QTest::sendKeyEvent(QTest::Click, &boite, Qt::Key_unknown, QString(lettre), Qt::NoModifier);
    }
  }
}

}  // namespace gastrelle::essai
