#pragma once

class QFileDialog;
class QItemSelectionModel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace ozm {

// As QFileSystemModel orders its columns.
constexpr int kNameColumn = 0;
constexpr int kSizeColumn = 1;
constexpr int kTypeColumn = 2;
constexpr int kDateColumn = 3;

// Parts of a file dialog that the toolkit draws, by the names it gives them. A toolkit that renames them
// gives null, and the dialogs do without.

[[nodiscard]] QLineEdit *nameBox(const QFileDialog &dialog);
/// Null in a dialog that saves.
[[nodiscard]] QPushButton *openButton(const QFileDialog &dialog);
/// Of the list and of the table of details, which share it.
[[nodiscard]] QItemSelectionModel *selectionModel(const QFileDialog &dialog);

/// Puts @p widget beneath all that is in the dialog.
void addToFileDialog(QFileDialog &dialog, QWidget *widget);

/// Gives types and dates the room that they need; names take the rest.
void widenColumns(const QFileDialog &dialog);

} // namespace ozm
