// The animation that follows a deletion.
#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>

namespace quartela {

namespace Ui {
class Status;
}

class Status : public QDialog {
  Q_OBJECT

 public:
  Status();
  ~Status() override;

  // Starts the progress and plays `arquivo`; without a file that can be played only the bar moves.
  void inicia(const QString& arquivo);

  // Neither Escape nor the frame ends it before the bar is full.
  void reject() override;

 private:
  void Timer1_timer();

  std::unique_ptr<Ui::Status> ui_;
  QTimer* Timer1 = nullptr;
  QTimer* Timer2 = nullptr;
};

// Shows Status as a modal window until its bar is full, which takes 20 ticks of 15 ms.
void Animacao_exclusao();

}  // namespace quartela
