// The bar at the foot of the main window: three panels, numbered from 1: a text, the date, the time.
#pragma once

#include <QStatusBar>
#include <QString>
#include <QTimer>
#include <array>

class QLabel;

namespace quartela {

class StatusBar : public QStatusBar {
  Q_OBJECT
 public:
  static constexpr int kPanels = 3;

  explicit StatusBar(QWidget* parent = nullptr);

  // Error 9 for a panel that does not exist.
  void setPanelText(int panel, const QString& text);
  QString panelText(int panel) const;

 private:
  void showMoment();
  QLabel& panel(int number) const;

  std::array<QLabel*, kPanels> panels_{};
  QTimer clock_;
};

}  // namespace quartela
