// The user's settings, outside the program's folder: the window's place, the reading size,
// addresses of links. Where their file can't be used, nothing is set and nothing is kept.
#pragma once

#include <optional>

#include <QSettings>
#include <QString>

namespace gastrelle {

class Reglages {
 public:
  /// What lies in the place of the file is looked at before it is opened: a pipe or a device would
  /// be waited for, and a file larger than any settings isn't read.
  Reglages();

  /// Empty if the entry isn't there.
  [[nodiscard]] QString Texte(const QString& cle) const;
  void Ecrit(const QString& cle, const QString& texte);
  void Oublie(const QString& cle);

 private:
  /// Whether what is changed can be kept. A lock that nobody gives back isn't waited for.
  bool SEcrit();

  std::optional<QSettings> magasin_;
  std::optional<bool> libre_;  ///< the lock, once it was tried
};

/// The toolkit's dialogs keep settings of their own. While this lives, and where their file can't
/// be used, they have none.
class ReglagesDesDialogues {
 public:
  ReglagesDesDialogues();
  ReglagesDesDialogues(const ReglagesDesDialogues&) = delete;
  ReglagesDesDialogues& operator=(const ReglagesDesDialogues&) = delete;
  ~ReglagesDesDialogues();

 private:
  bool ecartes_ = false;
};

}  // namespace gastrelle
