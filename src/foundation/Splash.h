// Stands between the login and the main window, on top of all windows: a moving bar for four
// seconds, during which the main window is brought up.
#pragma once

#include <QMovie>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>

namespace quartela {

namespace Ui {
class Splash;
}

class Splash : public QWidget {
  Q_OBJECT

 public:
  // Loads the picture, sets the hourglass and starts the timers. A picture that is missing or
  // broken goes to the error report; the pointer then stays as it was, and the timers run all the
  // same.
  Splash();
  ~Splash() override;

  // What shows the main window, called once by each splash. Where none is registered there is
  // nothing to show.
  static void registra_principal(std::function<void()> mostra);

 private:
  void carrega();
  void carrega_imagem();
  void move_imagem(int twips);
  void Timer1_timer();
  void Timer2_timer();
  void Timer3_timer();

  std::unique_ptr<Ui::Splash> ui_;
  QMovie imagem_;
  int posicao_ = 0;  // twips
  bool principal_chamada_ = false;
  QTimer* Timer1 = nullptr;
  QTimer* Timer2 = nullptr;
  QTimer* Timer3 = nullptr;
};

void mostra_Splash();

}  // namespace quartela
