#include "shell/ribbon/ImageList.h"

#include "platform/values/RuntimeError.h"

namespace quartela {

ListPicture ImageList::picture(int number) const {
  if (number < 1 || number > count()) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                       QStringLiteral("imagem %1 de %2").arg(number).arg(count()));
  }
  return {icons_.at(number - 1), size_};
}

}  // namespace quartela
