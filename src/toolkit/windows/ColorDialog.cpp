#include "toolkit/windows/ColorDialog.h"

#include "toolkit/controls/ColorSwatch.h"
#include "toolkit/windows/ModalLoop.h"

#include <QColorDialog>
#include <QPointer>

namespace kesta {

void RunColorDialog(ColorSwatch& swatch)
{
    const QPointer<ColorSwatch> alive = &swatch;
    QColorDialog dialog(swatch.color());
    dialog.setOption(QColorDialog::DontUseNativeDialog); // one that scripts and tests can act in
    QObject::connect(&dialog, &QDialog::finished, &dialog, [&dialog](int result) {
        EndModalLoop(dialog, result == QDialog::Accepted ? ModalResult::OK : ModalResult::Cancel);
    });
    if (RunModalLoop(dialog) == ModalResult::OK && alive)
        alive->chooseColor(dialog.selectedColor());
}

} // namespace kesta
