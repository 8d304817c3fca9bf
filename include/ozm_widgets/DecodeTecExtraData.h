#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QMetaObject>

class QObject;
class QVariant;

/**
 * An object, or a gadget, whose properties fill codes of a template that the data rows do not know.
 *
 *     const Run run = currentRun();                                   // a Q_GADGET
 *     AbstractTemplateEditor::decodeTEC(text, row, {{Run::staticMetaObject, &run}});
 *
 * Owns nothing: what it points to must outlive the decoding.
 */
struct OZM_WIDGETS_EXPORT DecodeTecExtraData
{
    DecodeTecExtraData(const QMetaObject &metaObject, const QObject *object);
    DecodeTecExtraData(const QMetaObject &metaObject, const void *gadget);

    /// The value of the property number @p index of the meta-object.
    [[nodiscard]] QVariant read(int index) const;

    QMetaObject metaObject;          ///< The type whose properties are read.
    const QObject *object = nullptr; ///< The object; null when there is a gadget.
    const void *gadget = nullptr;    ///< The gadget; null when there is an object.
};
