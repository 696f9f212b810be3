#pragma once

#include "platform/plugins/Bundle.h"

#include <QWidget>

#include <memory>

namespace kesta::gallery {

inline constexpr FourCharCode kGallery = "Glry"_code;

// The bundle of the gallery's interface files; its texts are the keys themselves.
Bundle GalleryBundle();

// Windows with one of everything, filled; of the interface files "Window" and "Controls".
std::unique_ptr<QWidget> MakeGalleryWindow();
std::unique_ptr<QWidget> MakeGalleryControls();

} // namespace kesta::gallery
