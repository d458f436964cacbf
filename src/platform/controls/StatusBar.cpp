#include "platform/controls/StatusBar.h"

#include <QLabel>

#include "platform/values/Clock.h"
#include "platform/values/Format.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

constexpr int kText = 1;
constexpr int kDate = 2;
constexpr int kTime = 3;
// Shown to the minute; looked at more often, so that the minute turns on time.
constexpr int kTickMilliseconds = 1000;

}  // namespace

StatusBar::StatusBar(QWidget* parent) : QStatusBar(parent) {
  for (int i = 0; i < kPanels; ++i) {
    auto* label = new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    label->setContentsMargins(6, 0, 6, 0);
    panels_[static_cast<std::size_t>(i)] = label;
    addWidget(label, i + 1 == kText ? 1 : 0);
  }
  panel(kText).setText(QStringLiteral("Status"));
  panel(kText).setAccessibleName(tr("Situação"));
  panel(kDate).setAccessibleName(tr("Data"));
  panel(kTime).setAccessibleName(tr("Hora"));
  connect(&clock_, &QTimer::timeout, this, &StatusBar::showMoment);
  clock_.start(kTickMilliseconds);
  showMoment();
}

void StatusBar::setPanelText(int number, const QString& text) {
  panel(number).setText(text);
}

QString StatusBar::panelText(int number) const {
  return panel(number).text();
}

void StatusBar::showMoment() {
  const DateTime now = Clock::now();
  panel(kDate).setText(Format(now, kDateFormat));
  panel(kTime).setText(Format(now, u"hh:mm"));
}

QLabel& StatusBar::panel(int number) const {
  if (number < 1 || number > kPanels) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  }
  return *panels_[static_cast<std::size_t>(number - 1)];
}

}  // namespace quartela
