#include "platform/values/RuntimeError.h"

#include <array>

namespace quartela {
namespace {

struct Entry {
  ErrorNumber number;
  const char* words;
};

constexpr std::array kEntries{
    Entry{ErrorNumber::InvalidProcedureCall, "Chamada ou argumento inválido."},
    Entry{ErrorNumber::Overflow, "O número é grande demais para este campo."},
    Entry{ErrorNumber::SubscriptOutOfRange, "O item pedido não existe."},
    Entry{ErrorNumber::DivisionByZero, "Divisão por zero."},
    Entry{ErrorNumber::TypeMismatch, "O valor digitado não é do tipo que o campo pede."},
    Entry{ErrorNumber::FileNotFound, "Arquivo não encontrado."},
    Entry{ErrorNumber::DiskFull, "O disco está cheio. Libere espaço e tente outra vez."},
    Entry{ErrorNumber::PermissionDenied, "Sem permissão para usar o arquivo."},
    Entry{ErrorNumber::PathFileAccess, "Não foi possível ler ou gravar o arquivo."},
    Entry{ErrorNumber::PathNotFound, "A pasta não foi encontrada."},
    Entry{ErrorNumber::InvalidPicture, "O arquivo de imagem ou animação está com defeito."},
    Entry{ErrorNumber::PrinterFailure, "Não foi possível imprimir. Confira a impressora."},
    Entry{ErrorNumber::CurrentRowMissing,
          "Não há registro atual. O registro pode ter sido excluído por outro programa."},
    Entry{ErrorNumber::DuplicateKey, "Já existe um registro com este número."},
    Entry{ErrorNumber::DatabaseNotFound, "O arquivo do banco de dados não foi encontrado."},
    Entry{ErrorNumber::SourceReadOnly, "Esta consulta só pode ser lida, não alterada."},
    Entry{ErrorNumber::DatabaseMoved,
          "Nada foi gravado: o arquivo do banco de dados foi movido, trocado ou excluído enquanto "
          "o programa estava aberto."},
    Entry{ErrorNumber::InvalidPath, "O caminho do banco de dados não é válido."},
    Entry{ErrorNumber::UnknownTable, "A tabela ou consulta não existe no banco de dados."},
    Entry{ErrorNumber::UnknownName, "A consulta usa um nome de campo que não existe."},
    Entry{ErrorNumber::SyntaxError,
          "A consulta não pôde ser entendida. Confira o texto digitado (apóstrofos, por exemplo)."},
    Entry{ErrorNumber::InvalidStatement, "Este comando não pode ser executado aqui."},
    Entry{ErrorNumber::RowDeleted, "O registro foi excluído por outro programa."},
    Entry{ErrorNumber::DependantsExist,
          "O registro não pode ser excluído porque outros cadastros dependem dele."},
    Entry{ErrorNumber::ParentMissing,
          "O registro não pode ser gravado porque um cadastro a que ele se liga não existe."},
    Entry{ErrorNumber::DatabaseDamaged, "O arquivo do banco de dados está danificado."},
    Entry{
        ErrorNumber::ReadOnlyDatabase,
        "O banco de dados só pode ser lido: o arquivo ou a pasta está protegido contra gravação."},
    Entry{ErrorNumber::RowLocked,
          "O banco de dados está sendo usado por outro programa. Tente outra vez em instantes."},
    Entry{ErrorNumber::ColumnNotFound, "O campo pedido não existe no resultado."},
    Entry{ErrorNumber::ColumnRequired, "Um campo obrigatório não foi preenchido."},
    Entry{ErrorNumber::ValueRefused, "O valor não é aceito por este campo."},
    Entry{ErrorNumber::OperandMismatch, "A consulta compara valores de tipos diferentes."},
    Entry{ErrorNumber::ObjectClosed, "O banco de dados não está aberto."},
    Entry{ErrorNumber::ObjectOpen, "O banco de dados já está aberto."},
};

QString withDetail(const QString& words, const QString& detail) {
  return detail.isEmpty() ? words : words + QStringLiteral(" [") + detail + QLatin1Char(']');
}

}  // namespace

QString errorDescription(ErrorNumber number) {
  for (const Entry& entry : kEntries) {
    if (entry.number == number) {
      return QString::fromUtf8(entry.words);
    }
  }
  return QStringLiteral("Erro desconhecido.");
}

RuntimeError::RuntimeError(ErrorNumber number, const Words& words, const QString& source)
    : number_(number),
      description_(words.text),
      source_(source.isEmpty() ? QStringLiteral("Quartela") : source),
      what_(QStringLiteral("%1: %2").arg(static_cast<int>(number)).arg(words.text).toUtf8()) {}

RuntimeError::RuntimeError(ErrorNumber number, const QString& detail, const QString& source)
    : RuntimeError(number, Words{withDetail(errorDescription(number), detail)}, source) {}

RuntimeError RuntimeError::withDescription(ErrorNumber number, const QString& description,
                                           const QString& source) {
  return RuntimeError(number, Words{description}, source);
}

}  // namespace quartela
