// The boxes of bottles in the running program, with real message boxes on a real screen.

#include "doublures/ProgrammeEssai.h"
#include "vins/VinsEssai.h"

namespace gastrelle::essai {
namespace {

class ProgrammeEtCave : public ProgrammeEssai {
 protected:
  /// Opens the wines on the bottles of "Abymes" (565).
  void OuvreLaCave() {
    b.GarnitVins();
    b.AjouteVin(VinEnCave("Abymes", {6}));
    Lance(programme);
    fenetre_ = FenetreDe(programme);
    Frappe({"ctrl+4", "ctrl+Prior", "ctrl+Prior"});
  }
  void Frappe(const QStringList& touches) {
    Outil({"windowfocus", "--sync", fenetre_});
    Outil(QStringList{"key", "--delay", "60"} + touches);
  }
  /// Closes the message that is on the screen, once it is there, by its only button.
  void FermeLeMessage(const char* titre) {
    const QString message = FenetreDe(programme, fenetre_);
    EXPECT_EQ(Outil({"getwindowname", message}), titre);
    Outil({"windowfocus", "--sync", message});
    Outil({"key", "Return"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Visibles().contains(message); }, patience));
  }

 private:
  QStringList Visibles() {
    return Outil({"search", "--onlyvisible", "--name", "."}).split(u'\n', Qt::SkipEmptyParts);
  }

  QString fenetre_;
};

TEST_F(ProgrammeEtCave, UneBoiteRefuseeGardeLeClavierEtSonTexteChoisiApresLeMessage) {
  OuvreLaCave();
  Frappe({"a", "b", "Tab"});
  FermeLeMessage("ab");
  Frappe({"4", "e", "4", "alt+u"});
  FermeLeMessage("4e4");
  FermeLeMessage("4e4");
  Frappe({"5", "Tab", "7", "ctrl+Return"});
  EXPECT_TRUE(QTest::qWaitFor([&] { return FicheVin(b, 565).nbBlanc == 5; }, patience));
  EXPECT_EQ(FicheVin(b, 565).nbRouge, 7);
  const std::vector<std::string> attendus(3, "Veuillez insérer un nombre entier (de 1 à 32767)");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Messages(programme) == attendus; }, patience));
}

}  // namespace
}  // namespace gastrelle::essai
