#pragma once

#include <QString>
#include <QTextFormat>

class QTextBlock;

namespace ozm::editor {

/// Set on the format of a block: the class of its element, by which a style sheet says its looks.
inline constexpr int kParagraphClass = QTextFormat::UserProperty + 5;

/// The class of @p block; empty where it has none.
[[nodiscard]] QString paragraphClass(const QTextBlock &block);

/// The class that @p tag says; empty where it says none that a style sheet could name.
[[nodiscard]] QString classOf(const QString &tag);

/// ' class="lead"', or nothing.
[[nodiscard]] QString classAttribute(const QString &name);

/// @p tag with the class @p name, or with none.
[[nodiscard]] QString withClass(QString tag, const QString &name);

} // namespace ozm::editor
