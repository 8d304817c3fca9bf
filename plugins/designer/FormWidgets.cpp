#include "FormWidgets.h"

#include <ozm_widgets/BlackSplitterHandle.h>
#include <ozm_widgets/OZMDockWidgetTitleBar.h>
#include <ozm_widgets/ReportView.h>

#ifdef OZM_WITH_TRAIL_VIEW
#include <ozm_audit_widgets/TrailView.h>
#endif

#include <QCoreApplication>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace {

struct WidgetRow
{
    QLatin1StringView name;
    QLatin1StringView base;
    QLatin1StringView header;
    bool isContainer;
    QLatin1StringView objectName;
    QLatin1StringView size;    ///< Width and height in a form, as its elements.
    QLatin1StringView content; ///< What a form gets along with the widget.
    const char *toolTip;
    QWidget *(*create)(QWidget *parent);
};

template <typename Widget>
QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

constexpr WidgetRow kRows[]{
    {"ozm::BlackSplitter"_L1, "QSplitter"_L1, "ozm_widgets/BlackSplitterHandle.h"_L1, true, "splitter"_L1,
     "<width>240</width><height>160</height>"_L1,
     // Two panes, so that there is a divider to see.
     R"(<widget class="QFrame" name="firstPane"/><widget class="QFrame" name="secondPane"/>)"_L1,
     QT_TRANSLATE_NOOP("FormWidgets", "A splitter whose dividers are thin lines and wide enough to grab"),
     make<ozm::BlackSplitter>},
    {"OZMDockWidget"_L1, "QDockWidget"_L1, "ozm_widgets/OZMDockWidgetTitleBar.h"_L1, true, "dockWidget"_L1,
     "<width>240</width><height>160</height>"_L1, R"(<widget class="QWidget" name="dockWidgetContents"/>)"_L1,
     QT_TRANSLATE_NOOP("FormWidgets", "A dock whose title bar is in the style of the suite"),
     make<OZMDockWidget>},
    {"ozm::ReportView"_L1,
     "QAbstractScrollArea"_L1,
     "ozm_widgets/ReportView.h"_L1,
     false,
     "reportView"_L1,
     "<width>320</width><height>400</height>"_L1,
     {},
     QT_TRANSLATE_NOOP("FormWidgets", "A report on its pages, as it is printed"),
     make<ozm::ReportView>},
#ifdef OZM_WITH_TRAIL_VIEW
    {"ozm::audit::TrailView"_L1,
     "QWidget"_L1,
     "ozm_audit_widgets/TrailView.h"_L1,
     false,
     "trailView"_L1,
     "<width>720</width><height>400</height>"_L1,
     {},
     QT_TRANSLATE_NOOP("FormWidgets",
                       "An audit trail to be read, filtered, reviewed and signed; setStore() fills it"),
     make<ozm::audit::TrailView>},
#endif
};

class FormWidget final : public QDesignerCustomWidgetInterface
{
public:
    explicit FormWidget(const WidgetRow &row)
        : m_row(row)
    {}

    [[nodiscard]] QString name() const override { return m_row.name; }
    [[nodiscard]] QString group() const override { return u"ozm_widgets"_s; }
    [[nodiscard]] QString toolTip() const override
    {
        return QCoreApplication::translate("FormWidgets", m_row.toolTip);
    }
    [[nodiscard]] QString whatsThis() const override { return toolTip(); }
    [[nodiscard]] QString includeFile() const override { return m_row.header; }
    [[nodiscard]] QIcon icon() const override { return {}; }
    [[nodiscard]] bool isContainer() const override { return m_row.isContainer; }
    [[nodiscard]] QWidget *createWidget(QWidget *parent) override { return m_row.create(parent); }

    [[nodiscard]] QString domXml() const override
    {
        return uR"(<ui language="c++">
 <widget class="%1" name="%2">
  <property name="geometry"><rect><x>0</x><y>0</y>%3</rect></property>
  %4
 </widget>
 <customwidgets>
  <customwidget><class>%1</class><extends>%5</extends><header>%6</header><container>%7</container></customwidget>
 </customwidgets>
</ui>)"_s.arg(m_row.name, m_row.objectName, m_row.size, m_row.content, m_row.base, m_row.header)
            .arg(int(m_row.isContainer));
    }

private:
    const WidgetRow &m_row;
};

} // namespace

FormWidgets::FormWidgets()
{
    for (const WidgetRow &row : kRows)
        m_widgets.push_back(std::make_unique<FormWidget>(row));
}

FormWidgets::~FormWidgets() = default;

QList<QDesignerCustomWidgetInterface *> FormWidgets::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> widgets;
    for (const auto &widget : m_widgets)
        widgets.append(widget.get());
    return widgets;
}
