// The main window: the ribbon with every command, the list of processes, the status bar. It routes;
// the list is filled by cTodos, the work is done in the windows that it opens.
#pragma once

#include <QHash>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <memory>

namespace quartela {

class FaixaRibbon;
class ImageList;
class ListView;
class StatusBar;

class frmOficce : public QWidget {
  Q_OBJECT

 public:
  explicit frmOficce(QWidget* parent = nullptr);
  ~frmOficce() override;

  // Refills the list under the filter in force.
  void Atualiza_grid();

  // Starts the program at `caminho` in a window of its own. One that is not found is told.
  static void LoadEXE(const QString& caminho);

  FaixaRibbon& Ribbon() { return *ribbon_; }
  ListView& ListView1() { return *lista_; }
  StatusBar& sbStatusBar() { return *barra_; }
  // Mirrors the number of the row last clicked; nothing reads it.
  const QString& txtkey() const { return txtkey_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // What a button's key does; a key without an entry does nothing.
  using Comandos = QHash<QString, void (*)(frmOficce&)>;
  static const Comandos& comandos();

  void Form_Load();
  void MontaRibbon();
  void prepara_lista();
  void prepara_barra();
  void liga_eventos();
  void Ribbon_ButtonClick(const QString& id);
  void Timer1_Timer();
  void Exclui_processo();
  void mostra_menu(int linha, const QPoint& posicao);
  void filtra(std::int16_t filtro);
  // From the last opened to the first; false when one asked its operator and stays.
  bool fecha_as_outras();

  std::unique_ptr<ImageList> ImageList_;
  FaixaRibbon* ribbon_;
  ListView* lista_;
  StatusBar* barra_;
  QString txtkey_;
  QTimer Timer1;
};

}  // namespace quartela
