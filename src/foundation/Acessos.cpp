#include "foundation/Acessos.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStringList>
#include <cstdio>

#include "platform/files/AtomicFile.h"
#include "platform/files/OpenFile.h"
#include "platform/values/Clock.h"
#include "platform/values/Format.h"

namespace quartela {
namespace {

const QLatin1String kAberto("aberto");
constexpr QLatin1Char kEntre('\t');
// About a thousand logins that failed; the log then begins anew.
constexpr qint64 kMaiorArquivo = 256 * 1024;

QString em_uma_linha(QString texto) {
  return texto.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(kEntre, QLatin1Char(' '));
}

bool termina_uma_linha(const QByteArray& bytes) {
  return bytes.isEmpty() || bytes.endsWith('\n');
}

std::optional<QByteArray> conteudo() {
  try {
    return readWhole(Arquivo_de_acessos(), kMaiorArquivo);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

void acrescenta(const QString& linha) {
  const QString pasta = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  QDir().mkpath(pasta);
  const auto antes = conteudo();
  const int comeco = antes && termina_uma_linha(*antes) ? O_APPEND : O_TRUNC;
  const OpenFile arquivo(QFile::encodeName(Arquivo_de_acessos()).constData(),
                         O_WRONLY | O_CREAT | comeco, 0600);
  const QByteArray bytes = linha.toUtf8() + '\n';
  // One call, so that two programs' lines never mix; a lost one is on the error output.
  if (arquivo.isOpen()) {
    static_cast<void>(
        !::write(arquivo.descriptor(), bytes.constData(), static_cast<std::size_t>(bytes.size())));
  }
}

QStringList ultima_linha() {
  const QList<QByteArray> linhas = conteudo().value_or(QByteArray()).trimmed().split('\n');
  return QString::fromUtf8(linhas.last()).split(kEntre);
}

}  // namespace

QString Arquivo_de_acessos() {
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
         QStringLiteral("/acessos.log");
}

void Anota_acesso_falho(const RuntimeError& erro) {
  const DateTime agora = Clock::now();
  const QString motivo =
      em_uma_linha(QStringLiteral("Erro %1. ").arg(erro.number()) + erro.description());
  std::fprintf(stderr, "quartela: %s: o banco de dados não foi aberto. %s\n",
               qUtf8Printable(Format(agora, u"dd/MM/yyyy hh:mm")), qUtf8Printable(motivo));
  acrescenta(agora.toIso() + kEntre + motivo);
}

void Anota_acesso() {
  if (Ultimo_acesso_falho()) {
    acrescenta(Clock::now().toIso() + kEntre + kAberto);
  }
}

std::optional<AcessoFalho> Ultimo_acesso_falho() {
  const QStringList campos = ultima_linha();
  if (campos.size() != 2 || campos[1] == kAberto) {
    return std::nullopt;
  }
  const QByteArray quando = campos[0].toLatin1();
  const auto momento = DateTime::fromIso(quando.constData(), static_cast<int>(quando.size()));
  return momento ? std::optional(AcessoFalho{*momento, campos[1]}) : std::nullopt;
}

}  // namespace quartela
