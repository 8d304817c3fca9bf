#include "BlackSplitterPlugin.h"

#include <ozm_widgets/BlackSplitterHandle.h>

#include <QIcon>

using namespace Qt::StringLiterals;

QIcon BlackSplitterPlugin::icon() const
{
    return {};
}

// Two panes, so that there is a divider to see.
QString BlackSplitterPlugin::domXml() const
{
    return uR"(<ui language="c++">
 <widget class="ozm::BlackSplitter" name="splitter">
  <property name="geometry"><rect><x>0</x><y>0</y><width>240</width><height>160</height></rect></property>
  <widget class="QFrame" name="firstPane"/>
  <widget class="QFrame" name="secondPane"/>
 </widget>
 <customwidgets>
  <customwidget>
   <class>ozm::BlackSplitter</class>
   <extends>QSplitter</extends>
   <header>ozm_widgets/BlackSplitterHandle.h</header>
   <container>1</container>
  </customwidget>
 </customwidgets>
</ui>)"_s;
}

QString BlackSplitterPlugin::group() const
{
    return u"ozm_widgets"_s;
}

QString BlackSplitterPlugin::includeFile() const
{
    return u"ozm_widgets/BlackSplitterHandle.h"_s;
}

QString BlackSplitterPlugin::name() const
{
    return u"ozm::BlackSplitter"_s;
}

QString BlackSplitterPlugin::toolTip() const
{
    return tr("A splitter whose dividers are thin lines and wide enough to grab.");
}

QString BlackSplitterPlugin::whatsThis() const
{
    return toolTip();
}

QWidget *BlackSplitterPlugin::createWidget(QWidget *parent)
{
    return new ozm::BlackSplitter(parent);
}
