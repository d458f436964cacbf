// The pictures of the main window: the ribbon's icons and those of the list's rows.
#pragma once

#include <QIcon>
#include <QList>
#include <QSize>
#include <memory>

namespace quartela {

class ImageList;

inline constexpr QSize kTamanhoIconeRibbon{24, 24};
inline constexpr QSize kTamanhoIconeLinha{32, 32};

// The 30 icons of the ribbon's buttons, numbered from 1.
std::unique_ptr<ImageList> imagens_do_ribbon();

// The icons of the rows, numbered from 1: open, closed, requisition only.
QList<QIcon> icones_das_linhas();

}  // namespace quartela
