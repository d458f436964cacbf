#include "foundation/frmConfigura.h"

#include <QCoreApplication>
#include <array>

#include "foundation/Aplicacao.h"
#include "foundation/Escape.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/Fechamento.h"
#include "foundation/Ini.h"
#include "foundation/UmaJanela.h"
#include "foundation/ui_frmConfigura.h"
#include "platform/values/Convert.h"

namespace quartela {
namespace {

struct Texto {
  const char* secao;
  const char* chave;
  QLineEdit* Ui::frmConfigura::*caixa;
};

constexpr std::array kTextos{
    Texto{"Secretaria", "nome", &Ui::frmConfigura::txtSec},
    Texto{"Financas", "nome", &Ui::frmConfigura::txtFinancas},
    Texto{"Financas", "cargo", &Ui::frmConfigura::txtcargo},
    Texto{"FTP", "endereco", &Ui::frmConfigura::txtEndereco},
    Texto{"FTP", "user", &Ui::frmConfigura::txtUser},
    Texto{"FTP", "senha", &Ui::frmConfigura::txtSenha},
};

struct Marca {
  const char* secao;
  const char* chave;
  QCheckBox* Ui::frmConfigura::*caixa;
};

constexpr std::array kMarcas{
    Marca{"Requisicao", "valor", &Ui::frmConfigura::Check1},
    Marca{"Requisicao", "valor2", &Ui::frmConfigura::Check2},
};

}  // namespace

frmConfigura::frmConfigura() : ui_(std::make_unique<Ui::frmConfigura>()) {
  ui_->setupUi(this);
  Estilo::mostra_marca(*ui_->lblMarca);
  Estilo::destaca(*ui_->Command1);
  Estilo::esconde_senha(*ui_->txtSenha);
  ui_->txtSec->setFocus();
  carrega();
  carregado_ = Conteudo_digitado(*this);
  liga(ui_->Command1, &QPushButton::clicked, this, &frmConfigura::Command1_click);
  Ao_escapar(*this, [this] { escapa(); });
}

frmConfigura::~frmConfigura() = default;

void frmConfigura::carrega() {
  for (const Texto& texto : kTextos) {
    (ui_.get()->*texto.caixa)
        ->setText(Le_config(QLatin1String(texto.secao), QLatin1String(texto.chave)));
  }
  for (const Marca& marca : kMarcas) {
    const QString valor = Le_config(QLatin1String(marca.secao), QLatin1String(marca.chave));
    (ui_.get()->*marca.caixa)->setChecked(Convert::toI16(Value(valor)) != 0);
  }
}

void frmConfigura::Command1_click() {
  for (const Texto& texto : kTextos) {
    Grava_config(QLatin1String(texto.secao), QLatin1String(texto.chave),
                 (ui_.get()->*texto.caixa)->text());
  }
  for (const Marca& marca : kMarcas) {
    const bool marcada = (ui_.get()->*marca.caixa)->isChecked();
    Grava_config(QLatin1String(marca.secao), QLatin1String(marca.chave),
                 marcada ? QStringLiteral("1") : QStringLiteral("0"));
  }
  close();
}

void frmConfigura::escapa() {
  if (Conteudo_digitado(*this) == carregado_ || Confirma_abandono()) {
    close();
  }
}

void mostra_frmConfigura() {
  try {
    UmaJanela<frmConfigura>::instancia().setWindowModality(Qt::ApplicationModal);
    UmaJanela<frmConfigura>::mostra();
  } catch (const RuntimeError& erro) {
    mostra_erro_sem_trava(erro);
    QCoreApplication::exit();
  }
}

}  // namespace quartela
