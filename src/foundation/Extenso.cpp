#include <unicode/locid.h>
#include <unicode/rbnf.h>

#include <QStringList>
#include <array>

#include "foundation/Textos.h"
#include "platform/values/Decimal.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

constexpr std::int64_t kMil = 1000;
constexpr std::int64_t kMilhao = kMil * kMil;
constexpr std::int64_t kCem = 100;
constexpr std::int64_t kCentavos = 100;
constexpr std::int64_t kLimite = kMilhao * kMilhao * kMil;

// The names of a class of three digits, for one and for more of it.
struct Classe {
  std::int64_t valor;
  QStringView singular;
  QStringView plural;
};

constexpr std::array kClasses{Classe{kMilhao * kMilhao, u"trilhão", u"trilhões"},
                              Classe{kMilhao * kMil, u"bilhão", u"bilhões"},
                              Classe{kMilhao, u"milhão", u"milhões"}, Classe{kMil, u"mil", u"mil"},
                              Classe{1, u"", u""}};

icu::RuleBasedNumberFormat regras() {
  UErrorCode erro = U_ZERO_ERROR;
  icu::RuleBasedNumberFormat formato(icu::URBNF_SPELLOUT, icu::Locale("pt", "BR"), erro);
  formato.setDefaultRuleSet(icu::UnicodeString(u"%spellout-cardinal-masculine"), erro);
  if (U_FAILURE(erro)) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, QString::fromLatin1(u_errorName(erro)));
  }
  return formato;
}

// 1 to 999; below a thousand there is nothing to choose between.
QString palavras(std::int64_t grupo) {
  static const icu::RuleBasedNumberFormat formato = regras();
  icu::UnicodeString texto;
  formato.format(grupo, texto);
  return QString::fromUtf16(texto.getBuffer(), texto.length());
}

QString nome(std::int64_t grupo, const Classe& classe) {
  if (classe.valor == 1) {
    return palavras(grupo);
  }
  if (classe.valor == kMil && grupo == 1) {
    return classe.singular.toString();
  }
  const QStringView palavra = grupo == 1 ? classe.singular : classe.plural;
  return palavras(grupo) + u' ' + palavra.toString();
}

// Classes follow each other without a conjunction; only the last one takes "e", and only where it
// is a number up to a hundred or of whole hundreds: "mil e cem", "mil cento e um".
QString inteiro(std::int64_t numero) {
  QStringList nomes;
  std::int64_t ultimo = 0;
  for (const Classe& classe : kClasses) {
    const std::int64_t grupo = numero / classe.valor % kMil;
    if (grupo != 0) {
      nomes.append(nome(grupo, classe));
      ultimo = grupo;
    }
  }
  if (nomes.size() < 2) {
    return nomes.join(QString());
  }
  const QString fim = nomes.takeLast();
  const bool com_e = ultimo < kCem || ultimo % kCem == 0;
  return nomes.join(QLatin1Char(' ')) + QLatin1String(com_e ? " e " : " ") + fim;
}

QString em_reais(std::int64_t reais) {
  if (reais == 1) {
    return QStringLiteral("um real");
  }
  const bool redondo = reais % kMilhao == 0;
  return inteiro(reais) + QLatin1String(redondo ? " de reais" : " reais");
}

QString em_centavos(std::int64_t centavos) {
  return inteiro(centavos) + QLatin1String(centavos == 1 ? " centavo" : " centavos");
}

QString valor_absoluto(std::int64_t centavos) {
  const std::int64_t reais = centavos / kCentavos;
  const std::int64_t resto = centavos % kCentavos;
  if (centavos == 0) {
    return QStringLiteral("zero reais");
  }
  if (resto == 0) {
    return em_reais(reais);
  }
  return reais == 0 ? em_centavos(resto)
                    : em_reais(reais) + QLatin1String(" e ") + em_centavos(resto);
}

}  // namespace

QString Extenso(const QString& valor) {
  auto numero = Decimal::fromText(valor);
  if (!numero) {
    return {};
  }
  numero->round(2, Decimal::Rounding::HalfAway);
  const auto centavos = numero->units(2);
  if (!centavos || *centavos <= -kLimite * kCentavos || *centavos >= kLimite * kCentavos) {
    return {};
  }
  return *centavos < 0 ? QLatin1String("menos ") + valor_absoluto(-*centavos)
                       : valor_absoluto(*centavos);
}

}  // namespace quartela
