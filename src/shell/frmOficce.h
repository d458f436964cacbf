// The main window: the ribbon with every command, the list of processes, the status bar. It routes;
// the list is filled by cTodos, the work is done in the windows that it opens.
#pragma once

#include <QString>
#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <memory>

class QLabel;
class QLineEdit;

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
  // Puts a filter in force and refills the list.
  void filtra(std::int16_t filtro);
  // Deletes the process last clicked, after asking; says so where none was.
  void Exclui_processo();

  // Starts the program at `caminho` in a window of its own. One that is not found is told.
  static void LoadEXE(const QString& caminho);

  FaixaRibbon& Ribbon() { return *ribbon_; }
  ListView& ListView1() { return *lista_; }
  StatusBar& sbStatusBar() { return *barra_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Form_Load();
  void MontaRibbon();
  void prepara_lista();
  void prepara_barra();
  void prepara_chave();
  void prepara_filtro();
  void liga_eventos();
  void liga_atalhos();
  void Ribbon_ButtonClick(const QString& id);
  void Timer1_Timer();
  void escolhe(int linha);
  void na_linha(int linha, const QString& chave);
  void mostra_menu(int linha, const QPoint& posicao);
  void mostra_filtro(std::int16_t codigo);
  void ajusta_filtro();
  void veste_tema();
  // Where the row of tabs ends, in pixels.
  int fim_das_guias() const;
  // From the last opened to the first; false when one asked its operator and stays.
  bool fecha_as_outras();

  std::unique_ptr<ImageList> ImageList_;
  QLineEdit* txtkey;  // mirrors Tag_principal; nothing reads it
  FaixaRibbon* ribbon_;
  QLabel* lblFiltro_;
  ListView* lista_;
  StatusBar* barra_;
  QString filtro_;  // what lblFiltro_ says where it has the room
  QTimer Timer1;
};

}  // namespace quartela
