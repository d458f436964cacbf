#include "foundation/Verificacao.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>
#include <QStringList>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <memory>

#include "platform/database/Damage.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/KeyFile.h"
#include "platform/values/Clock.h"
#include "platform/values/DateTime.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

const QString kDia = QStringLiteral("dia");
const QString kSemana = QStringLiteral("semana");

struct Em_curso {
  std::atomic_bool cancelada = false;
  std::unique_ptr<QThread> linha;
};

std::unique_ptr<Em_curso>& em_curso() {
  static std::unique_ptr<Em_curso> verificacao;
  return verificacao;
}

// The splash is gone and the list filled by then.
constexpr std::chrono::seconds kDepoisDoInicio{8};

QTimer& espera() {
  static QTimer* const relogio = [] {
    auto* const novo = new QTimer(qApp);
    novo->setSingleShot(true);
    return novo;
  }();
  return *relogio;
}

QString pasta_do_usuario() {
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString arquivo_de_datas() {
  return pasta_do_usuario() + QStringLiteral("/verificacoes.ini");
}

// A path may hold what a section's name may not.
QString secao_de(const QString& arquivo) {
  return QString::fromLatin1(
      QCryptographicHash::hash(arquivo.toUtf8(), QCryptographicHash::Sha1).toHex());
}

QString hoje() {
  return Clock::now().toIso().left(10);
}

// The Monday of this week.
QString esta_semana() {
  const QDate dia = QDate::fromString(hoje(), Qt::ISODate);
  return dia.addDays(1 - dia.dayOfWeek()).toString(Qt::ISODate);
}

QString data_da(const QString& arquivo, const QString& chave) {
  return readKey(arquivo_de_datas(), secao_de(arquivo), chave);
}

void anota(const QString& arquivo, CheckDepth alcance) {
  QDir().mkpath(pasta_do_usuario());
  std::vector<KeyValue> chaves{{secao_de(arquivo), kDia, hoje()}};
  if (alcance == CheckDepth::Full) {
    chaves.push_back({secao_de(arquivo), kSemana, esta_semana()});
  }
  writeKeys(arquivo_de_datas(), chaves);
}

void avisa(const QString& arquivo, const QStringList& danos) {
  Dialogs::exclamation(QStringLiteral("O banco de dados \"%1\" está danificado:\n\n%2\n\n"
                                      "Nada foi alterado. Faça já uma cópia do arquivo, recupere "
                                      "estes registros de uma cópia anterior ou chame o suporte.")
                           .arg(arquivo, danos.join(QLatin1Char('\n'))));
}

// In the thread of the window system.
void conclui(const QString& arquivo, CheckDepth alcance, const QStringList& danos) {
  if (!danos.isEmpty()) {
    avisa(arquivo, danos);
    return;
  }
  try {
    anota(arquivo, alcance);
  } catch (const RuntimeError&) {
    // Without a note the next opening checks again, which is all that is lost.
  }
}

void examina(const QString& arquivo, CheckDepth alcance, const Em_curso& curso) {
  try {
    const QStringList danos = findDamage(arquivo, alcance, curso.cancelada);
    if (!curso.cancelada) {
      QMetaObject::invokeMethod(qApp, [=] { conclui(arquivo, alcance, danos); });
    }
  } catch (const std::exception&) {
    // No room for a copy, or no way to the file at the moment: the next opening checks again.
  }
}

}  // namespace

void Agenda_verificacao(const QString& arquivo) {
  espera().callOnTimeout(qApp, [arquivo] { Comeca_verificacao(arquivo); });
  espera().start(kDepoisDoInicio);
}

void Comeca_verificacao(const QString& arquivo) {
  Encerra_verificacao();
  try {
    if (data_da(arquivo, kDia) == hoje()) {
      return;
    }
    const CheckDepth alcance =
        data_da(arquivo, kSemana) == esta_semana() ? CheckDepth::Quick : CheckDepth::Full;
    auto curso = std::make_unique<Em_curso>();
    curso->linha.reset(QThread::create(
        [arquivo, alcance, dele = curso.get()] { examina(arquivo, alcance, *dele); }));
    curso->linha->start(QThread::LowestPriority);
    em_curso() = std::move(curso);
  } catch (const RuntimeError&) {
    // The dates cannot be read: the check is put off to the next opening.
  }
}

void Encerra_verificacao() {
  espera().stop();
  espera().disconnect();
  if (em_curso()) {
    em_curso()->cancelada = true;
    em_curso()->linha->wait();
    em_curso().reset();
  }
}

}  // namespace quartela
