// The floor of a start: a window with one empty child window inside, both with their titles, and
// nothing else. With any argument they have none: what is left without a word on the screen, and so
// without loading a font.

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QWidget>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow fenetre;
  auto* enfants = new QMdiArea(&fenetre);
  fenetre.setCentralWidget(enfants);
  QMdiSubWindow* enfant = enfants->addSubWindow(new QWidget);
  if (argc == 1) {
    fenetre.setWindowTitle(QStringLiteral("Fenêtre"));
    enfant->setWindowTitle(QStringLiteral("Enfant"));
  }
  fenetre.show();
  return QApplication::exec();
}
