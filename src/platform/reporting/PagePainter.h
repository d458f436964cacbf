// Paints a page: the one way to the screen, the printer and a PDF, so that they never differ.
#pragma once

#include <QRectF>

#include "platform/reporting/Document.h"

class QPainter;

namespace quartela::reporting {

// The painter's unit is a twip and its origin the paper's top left corner. Items that do not touch
// `exposed` are passed over; a null rectangle means all. The painter's pen, brush and font are left
// changed. The paper itself is not painted.
void paintPage(QPainter& painter, const Page& page, const QRectF& exposed = {});

}  // namespace quartela::reporting
