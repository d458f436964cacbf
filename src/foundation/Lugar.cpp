#include "foundation/Lugar.h"

#include <QGuiApplication>
#include <QRect>
#include <QScreen>
#include <QStringList>
#include <QWidget>
#include <optional>

#include "foundation/Ini.h"
#include "platform/files/ProgramFolder.h"
#include "platform/values/RuntimeError.h"

namespace quartela::Lugar {
namespace {

constexpr const char* kAoAbrir = "lugarAoAbrir";
const QString kMaximizada = QStringLiteral(" maximizada");

QString arquivo() {
  return programFile(QStringLiteral("Janelas.ini"));
}

// Other screens are another section: what was left on a second screen is not looked for without it.
QString telas() {
  QStringList medidas;
  for (const QScreen* const tela : QGuiApplication::screens()) {
    const QRect lugar = tela->geometry();
    medidas << QStringLiteral("%1x%2+%3+%4")
                   .arg(lugar.width())
                   .arg(lugar.height())
                   .arg(lugar.x())
                   .arg(lugar.y());
  }
  return medidas.join(QLatin1Char(' '));
}

// "x y width height", and a word behind them for a maximised window, whose own measures these are
// not but those that it goes back to.
QString descreve(const QWidget& janela) {
  const QRect lugar = janela.isMaximized() ? janela.normalGeometry() : janela.geometry();
  return QStringLiteral("%1 %2 %3 %4%5")
      .arg(lugar.x())
      .arg(lugar.y())
      .arg(lugar.width())
      .arg(lugar.height())
      .arg(janela.isMaximized() ? kMaximizada : QString());
}

std::optional<QRect> lugar_descrito(const QString& texto) {
  const QStringList partes = texto.split(QLatin1Char(' '));
  QList<int> numeros;
  for (const QString& parte : partes.mid(0, 4)) {
    bool numero = false;
    numeros << parte.toInt(&numero);
    if (!numero) {
      return std::nullopt;
    }
  }
  if (numeros.size() < 4) {
    return std::nullopt;
  }
  const QRect lugar(numeros[0], numeros[1], numeros[2], numeros[3]);
  return QGuiApplication::screenAt(lugar.center()) == nullptr ? std::nullopt : std::optional(lugar);
}

// A file that cannot be read holds no place.
QString texto_guardado(const QWidget& janela) {
  try {
    return Le_ini(telas(), janela.objectName(), arquivo());
  } catch (const RuntimeError&) {
    return {};
  }
}

bool guardavel(const QWidget& janela) {
  return janela.objectName().startsWith(QLatin1String("frm")) &&
         janela.minimumSize() != janela.maximumSize();
}

}  // namespace

void devolve(QWidget& janela) {
  if (!guardavel(janela)) {
    return;
  }
  const QString texto = texto_guardado(janela);
  if (const std::optional<QRect> lugar = lugar_descrito(texto)) {
    janela.setGeometry(*lugar);
    if (texto.endsWith(kMaximizada)) {
      // Behind the showing, in which the toolkit gives the window its own size once more.
      QMetaObject::invokeMethod(&janela, &QWidget::showMaximized, Qt::QueuedConnection);
    }
  }
  janela.setProperty(kAoAbrir, descreve(janela));
}

void guarda(QWidget& janela) {
  const QString lugar = descreve(janela);
  if (!guardavel(janela) || janela.isMinimized() || lugar == janela.property(kAoAbrir).toString()) {
    return;
  }
  try {
    Grava_ini(telas(), janela.objectName(), lugar, arquivo());
  } catch (const RuntimeError&) {
    return;
  }
}

}  // namespace quartela::Lugar
