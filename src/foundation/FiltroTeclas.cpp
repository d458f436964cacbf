// Lets a keystroke filter see what is typed, composed, pasted or dropped into a line.
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

#include "foundation/Evento.h"
#include "foundation/Rotinas.h"
#include "platform/controls/Refusal.h"
#include "platform/controls/TypedText.h"

namespace quartela {
namespace {

constexpr int kBackspace = 8;
constexpr int kMaisLongoMostrado = 40;

class Filtro : public QObject {
 public:
  Filtro(QLineEdit& caixa, Filtro_tecla filtro, QString sinais)
      : QObject(&caixa), caixa_(caixa), filtro_(std::move(filtro)), sinais_(std::move(sinais)) {
    caixa.installEventFilter(this);
  }

  bool eventFilter(QObject* objeto, QEvent* evento) override {
    return trata(*evento) || QObject::eventFilter(objeto, evento);
  }

 private:
  // True when the event goes no further. Other events also come while the line is being destroyed:
  // it is asked nothing then.
  bool trata(QEvent& evento) {
    switch (evento.type()) {
      case QEvent::KeyPress:
      case QEvent::InputMethod:
      case QEvent::MouseButtonRelease:
      case QEvent::Drop:
      case QEvent::ContextMenu:
        return !caixa_.isReadOnly() && filtra(evento);
      default:
        return false;
    }
  }

  bool filtra(QEvent& evento) {
    switch (evento.type()) {
      case QEvent::KeyPress:
        return aperta(static_cast<QKeyEvent&>(evento));
      case QEvent::InputMethod:
        return compoe(static_cast<QInputMethodEvent&>(evento));
      case QEvent::MouseButtonRelease:
        return solta(static_cast<QMouseEvent&>(evento));
      case QEvent::Drop:
        return recebe(static_cast<QDropEvent&>(evento));
      case QEvent::ContextMenu:
        return mostra_menu(static_cast<QContextMenuEvent&>(evento));
      default:
        return false;
    }
  }

  bool aperta(QKeyEvent& evento) {
    if (evento.matches(QKeySequence::Paste)) {
      cola(QApplication::clipboard()->text());
      return true;
    }
    const QString texto = typedText(evento);
    if (texto.size() > 1) {
      digita_todas(texto);
      return true;
    }
    const bool apaga = evento.key() == Qt::Key_Backspace;
    const int antes = apaga ? kBackspace : texto.isEmpty() ? 0 : int{texto.at(0).unicode()};
    if (antes == 0) {
      return false;
    }
    int tecla = antes;
    filtro_(caixa_, tecla);
    if (tecla != antes && tecla != 0) {
      caixa_.insert(QString(QChar(tecla)));
    }
    return tecla != antes;
  }

  // What is still being composed (an accent without its letter) does not come in, so that it cannot
  // take the selection away.
  bool compoe(QInputMethodEvent& evento) {
    digita_todas(evento.commitString());
    evento.accept();
    return true;
  }

  // The middle button pastes what is selected elsewhere.
  bool solta(const QMouseEvent& evento) {
    if (evento.button() != Qt::MiddleButton || !QApplication::clipboard()->supportsSelection()) {
      return false;
    }
    caixa_.setCursorPosition(caixa_.cursorPositionAt(evento.position().toPoint()));
    cola(QApplication::clipboard()->text(QClipboard::Selection));
    return true;
  }

  bool recebe(QDropEvent& evento) {
    caixa_.setCursorPosition(caixa_.cursorPositionAt(evento.position().toPoint()));
    cola(evento.mimeData()->text());
    evento.setDropAction(Qt::CopyAction);
    evento.accept();
    return true;
  }

  bool mostra_menu(const QContextMenuEvent& evento) {
    QMenu* const menu = caixa_.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QList<QAction*> comandos = menu->actions();
    for (QAction* const comando : comandos) {
      if (comando->text().startsWith(QLineEdit::tr("&Paste"))) {
        comando->disconnect();
        liga(comando, &QAction::triggered, this,
             [this] { cola(QApplication::clipboard()->text()); });
      }
    }
    menu->popup(evento.globalPos());
    return true;
  }

  bool digita(QLineEdit& linha, QChar letra) const {
    int tecla = letra.unicode();
    filtro_(linha, tecla);
    const QString antes = linha.text();
    if (tecla != 0) {
      linha.insert(QString(QChar(tecla)));
    }
    return tecla != 0 && linha.text().size() > antes.size();
  }

  void digita_todas(const QString& letras) {
    for (const QChar letra : letras) {
      digita(caixa_, letra);
    }
  }

  // Typed into a line beside, so that what does not fit as a whole leaves this one as it is.
  void cola(const QString& colado) {
    QLineEdit rascunho;
    rascunho.setMaxLength(caixa_.maxLength());
    rascunho.setText(caixa_.text());
    rascunho.setCursorPosition(caixa_.cursorPosition());
    if (caixa_.hasSelectedText()) {
      rascunho.setSelection(caixa_.selectionStart(), caixa_.selectionLength());
      rascunho.del();
    }
    for (const QChar letra : colado.trimmed()) {
      if (!sinais_.contains(letra) && !digita(rascunho, letra)) {
        tellRefusal(caixa_, QStringLiteral("“%1” não cabe neste campo: nada foi colado.")
                                .arg(colado.trimmed().left(kMaisLongoMostrado)));
        return;
      }
    }
    if (rascunho.text() != caixa_.text()) {
      caixa_.selectAll();
      caixa_.insert(rascunho.text());
      caixa_.setCursorPosition(rascunho.cursorPosition());
    }
  }

  QLineEdit& caixa_;
  Filtro_tecla filtro_;
  QString sinais_;
};

}  // namespace

void Filtra_teclas(QLineEdit& caixa, Filtro_tecla filtro, const QString& sinais) {
  new Filtro(caixa, std::move(filtro), sinais);
}

}  // namespace quartela
