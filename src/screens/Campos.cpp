#include "screens/Campos.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringList>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <functional>
#include <utility>

#include "foundation/Evento.h"
#include "foundation/Fechamento.h"
#include "platform/controls/DatePicker.h"
#include "platform/controls/MaskedBox.h"
#include "platform/controls/MoneyEdit.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Clock.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"

namespace quartela {
namespace {

constexpr int kDigitosAno = 2;
constexpr QRgb kTintaInativa = 0xFF55606D;
const DateTime kPrimeiraData = DateTime::of(1997, 1, 1);
const DateTime kUltimaData = DateTime::of(2100, 12, 31);

// Lets `trata` see the events of a widget for as long as it lives; true ends the event.
class Vigia : public QObject {
 public:
  using Trata = std::function<bool(QEvent&)>;

  Vigia(QWidget& campo, Trata trata) : QObject(&campo), trata_(std::move(trata)) {
    campo.installEventFilter(this);
  }

  bool eventFilter(QObject* objeto, QEvent* evento) override {
    return trata_(*evento) || QObject::eventFilter(objeto, evento);
  }

 private:
  Trata trata_;
};

bool eh_enter(const QEvent& evento) {
  if (evento.type() != QEvent::KeyPress) {
    return false;
  }
  const int tecla = static_cast<const QKeyEvent&>(evento).key();
  return tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
}

}  // namespace

// The click that brings the focus sets the caret afterwards; so the selection waits for it.
void Seleciona_ao_entrar(QLineEdit& campo) {
  new Vigia(campo, [&campo](QEvent& evento) {
    if (evento.type() == QEvent::FocusIn) {
      const bool com_mouse = static_cast<QFocusEvent&>(evento).reason() == Qt::MouseFocusReason;
      campo.selectAll();
      if (com_mouse) {
        QTimer::singleShot(0, &campo, &QLineEdit::selectAll);
      }
    }
    return false;
  });
}

void Enter_avanca(QLineEdit& campo) {
  new Vigia(campo, [&campo](QEvent& evento) {
    if (!eh_enter(evento)) {
      return false;
    }
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(&campo, &tab);
    return true;
  });
}

// The number is right in its group and the year behind it. Digits typed in a row that leave the
// year with one of its two are a number without its leading zero.
void Completa_ao_sair(MaskedBox& campo) {
  const auto completa = [&campo] {
    const QStringList grupos = campo.text().remove(MaskedBox::kPrompt).split(QLatin1Char('/'));
    if (grupos.size() != 2 || grupos.at(0).isEmpty() || campo.isComplete()) {
      return;
    }
    const auto lugares = campo.text().indexOf(QLatin1Char('/'));
    const bool corrido = grupos.at(0).size() == lugares;
    QString digitos = grupos.join(QString());
    if (grupos.at(1).isEmpty()) {
      digitos += Format(Clock::today(), u"yy");
    } else if (!corrido) {
      digitos = grupos.at(0) + grupos.at(1).rightJustified(kDigitosAno, QLatin1Char('0'));
    }
    campo.setText(digitos.rightJustified(lugares + kDigitosAno, QLatin1Char('0')));
  };
  new Vigia(campo, [&campo, completa](QEvent& evento) {
    const bool sai = evento.type() == QEvent::FocusOut &&
                     static_cast<QFocusEvent&>(evento).reason() != Qt::PopupFocusReason;
    if (sai && !campo.isReadOnly()) {
      completa();
    }
    return false;
  });
}

void Ignora_roda(QWidget& campo) {
  new Vigia(campo, [](QEvent& evento) {
    if (evento.type() == QEvent::Wheel) {
      evento.ignore();
      return true;
    }
    return false;
  });
}

// Field by field, since the fields take their colours from the program, not from the part they
// stand in.
void Escurece_inativos(QWidget& parte) {
  const QList<QWidget*> campos = parte.findChildren<QWidget*>();
  for (QWidget* const campo : campos) {
    QPalette cores = campo->palette();
    for (const QPalette::ColorRole papel :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      cores.setColor(QPalette::Disabled, papel, QColor(kTintaInativa));
    }
    campo->setPalette(cores);
  }
}

QString Nome_proprio(const QString& texto) {
  QString proprio = texto.toLower();
  bool inicio = true;
  for (QChar& letra : proprio) {
    if (inicio) {
      letra = letra.toUpper();
    }
    inicio = letra.isSpace();
  }
  return proprio;
}

void Mostra_data(DatePicker& data, const Value& valor) {
  DateTime primeira = kPrimeiraData;
  DateTime ultima = kUltimaData;
  if (!valor.isNull()) {
    const DateTime dia = Convert::toDateTime(valor).date();
    primeira = std::min(primeira, dia);
    ultima = std::max(ultima, dia);
  }
  data.setMinimum(primeira);
  data.setMaximum(ultima);
  data.setValue(valor);
}

void ValorMostrado::mostra(MoneyEdit& campo, Money valor, const QString& texto) {
  campo.setText(texto);
  valor_ = valor;
  mostrado_ = Conteudo_campo(campo);
}

Money ValorMostrado::valor(const MoneyEdit& campo) const {
  return valor_ && Conteudo_campo(campo) == mostrado_ ? *valor_ : campo.value();
}

DateTime Com_hora_carregada(const DateTime& dia, const DateTime& carregada) {
  return dia.date() == carregada.date() ? carregada : dia;
}

bool Avisa_valor_recusado(MoneyEdit& campo) {
  try {
    if (!campo.isEmpty()) {
      campo.value();
    }
    return false;
  } catch (const RuntimeError&) {
    Dialogs::exclamation(QStringLiteral("Valor inválido!!"));
    campo.setFocus();
    return true;
  }
}

void DatasRecusadas::observa(DatePicker& data) {
  data.setMinimum(kPrimeiraData);
  data.setMaximum(kUltimaData);
  liga(&data, &DatePicker::typingRefused, &data, [this, &data](const QString& digitado) {
    if (!recusadas_.contains(&data)) {
      recusadas_.append(&data);
    }
    QToolTip::showText(
        data.mapToGlobal(data.rect().bottomLeft()),
        QStringLiteral("%1 não é uma data de 1997 a 2100: voltou o valor anterior.").arg(digitado),
        &data);
  });
  liga(&data, &DatePicker::valueChanged, &data, [this, &data] { recusadas_.removeAll(&data); });
}

bool DatasRecusadas::avisa() {
  if (recusadas_.isEmpty()) {
    return false;
  }
  DatePicker* const data = recusadas_.takeFirst();
  Dialogs::exclamation(QStringLiteral("Data inválida!!"));
  data->setFocus();
  return true;
}

}  // namespace quartela
