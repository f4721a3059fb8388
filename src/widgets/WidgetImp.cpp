#include <KvUICore/util/XmlFiler.h>
#include <KvUICore/widgets/WidgetImp.h>
#include <KvUICore/widgets/WinWidgetImp.h>

#include <QDomDocument>
#include <QDomNamedNodeMap>
#include <QHBoxLayout>

#include <cmath>

namespace {

QHBoxLayout* newFillLayout()
{
    auto* layout = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

} // namespace

WidgetImp::WidgetImp(HWND parentWindow)
    : QWidget(nullptr, Qt::WindowFlags())
{
    if (!parentWindow) {
        mpHostWidget = this;
    } else if (QWidget* owner = QWidget::find(Kavrel::UICore::Platform::WIdFromHandle(parentWindow))) {
        mpHostWidget = this;
        QHBoxLayout* layout = newFillLayout();
        layout->addWidget(this);
        // A widget takes no second layout: the new one would be left without
        // an owner and this widget without a place. The owner's layout has to
        // go for it; the widgets it managed stay children of the owner.
        delete owner->layout();
        owner->setLayout(layout);
    } else {
        auto* wrapper = new WinWidgetImp(parentWindow);
        wrapper->setWindowTitle(QStringLiteral("WinWidget"));
        QHBoxLayout* layout = newFillLayout();
        wrapper->setLayout(layout);
        setParent(wrapper);
        layout->addWidget(this);
        mpHostWidget = wrapper;
    }
    // The host's top-level window is not a Qt window, yet tooltips must show.
    mpHostWidget->setAttribute(Qt::WA_AlwaysShowToolTips);
    mbBorderVisible = false;
}

WidgetImp::WidgetImp(QWidget* parent)
    : QWidget(parent)
    , mpHostWidget(this)
{
    if (!parent)
        return;
    QHBoxLayout* layout = newFillLayout();
    layout->addWidget(this);
    // The old layout goes, its widgets stay children of the parent.
    delete parent->layout();
    parent->setLayout(layout);
}

WidgetImp::~WidgetImp()
{
    if (mpHostWidget && mpHostWidget != this)
        mpHostWidget->deleteLater();
}

// ---- Queries ---------------------------------------------------------------

QPoint WidgetImp::GetPosition() const
{
    if (!mpHostWidget)
        return QPoint(0, 0);
    if (auto* wrapper = qobject_cast<Kavrel::UICore::Platform::WinWidget*>(mpHostWidget))
        return wrapper->PositionInParentWindow();
    return mpHostWidget->pos();
}

int WidgetImp::GetX() const
{
    return GetPosition().x();
}

int WidgetImp::GetY() const
{
    return GetPosition().y();
}

int WidgetImp::GetWidth() const
{
    return mpHostWidget ? mpHostWidget->width() : 0;
}

int WidgetImp::GetHeight() const
{
    return mpHostWidget ? mpHostWidget->height() : 0;
}

int WidgetImp::GetMinimumHeight()
{
    return minimumHeight();
}

HWND WidgetImp::GetWinId() const
{
    return mpHostWidget ? Kavrel::UICore::Platform::HandleFromWId(mpHostWidget->winId()) : nullptr;
}

bool WidgetImp::IsEnabled() const
{
    return mpHostWidget && mpHostWidget->isEnabled();
}

bool WidgetImp::IsVisible() const
{
    return mpHostWidget && mpHostWidget->isVisible();
}

bool WidgetImp::IsBorderVisible()
{
    return mbBorderVisible;
}

bool WidgetImp::IsParentWindowsNativeWindow()
{
    return mpHostWidget && mpHostWidget != this;
}

// ---- Commands --------------------------------------------------------------

void WidgetImp::Move(int x, int y)
{
    if (mpHostWidget)
        mpHostWidget->move(x, y);
}

void WidgetImp::Resize(int width, int height)
{
    if (!mpHostWidget)
        return;
    Q_EMIT Resizing(width, height);
    mpHostWidget->resize(width, height);
}

void WidgetImp::Resize(int x, int y, int width, int height)
{
    if (!mpHostWidget)
        return;
    Q_EMIT Resizing(width, height);
    const float ratio = float(devicePixelRatioF());
    if (mpHostWidget == this || !(ratio > 1.0f)) {
        mpHostWidget->setGeometry(x, y, width, height);
        return;
    }
    // Only the position is native pixels of the host; the size is not scaled.
    mpHostWidget->setGeometry(int(std::lround(float(x) / ratio)), int(std::lround(float(y) / ratio)), width, height);
}

void WidgetImp::Show()
{
    if (mpHostWidget)
        mpHostWidget->show();
}

void WidgetImp::Hide()
{
    if (mpHostWidget)
        mpHostWidget->hide();
}

void WidgetImp::SetVisible(bool visible)
{
    if (mpHostWidget)
        mpHostWidget->setVisible(visible);
}

void WidgetImp::SetEnabled(bool enabled)
{
    if (mpHostWidget)
        mpHostWidget->setEnabled(enabled);
}

void WidgetImp::ShowBorder(bool show)
{
    if (!mpHostWidget)
        return;
    mbBorderVisible = show;
    BorderVisibleChanged();
}

// ---- Subclass hooks ----------------------------------------------------------

void WidgetImp::LoadState(QDomElement&) {}

void WidgetImp::SaveState(QDomElement&) const {}

QString WidgetImp::StateNodeId() const
{
    return QString();
}

void WidgetImp::BorderVisibleChanged() {}

// ---- Attribute helpers -------------------------------------------------------

bool WidgetImp::GetBoolAttribute(QDomElement& element, const QString& name, bool defaultValue)
{
    const QString text = element.attribute(name);
    if (text.isEmpty())
        return defaultValue;
    return text.toInt() != 0;
}

int WidgetImp::GetIntAttribute(QDomElement& element, const QString& name, int defaultValue)
{
    const QString text = element.attribute(name);
    if (text.isEmpty())
        return defaultValue;
    return text.toInt();
}

void WidgetImp::SetBoolAttribute(QDomElement& element, const QString& name, bool value) const
{
    element.setAttribute(name, value ? QStringLiteral("1") : QStringLiteral("0"));
}

void WidgetImp::SetIntAttribute(QDomElement& element, const QString& name, int value) const
{
    element.setAttribute(name, QString::number(value));
}

// ---- Element paths -----------------------------------------------------------

QDomElement WidgetImp::CreateChildElement(QDomNode& parent, const QString& name)
{
    QDomDocument document = parent.ownerDocument();
    if (document.isNull())
        return QDomElement();
    QDomElement child = document.createElement(name);
    parent.appendChild(child);
    return child;
}

QDomElement WidgetImp::GetElement(QDomNode node, const QString& path, bool create)
{
    const QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts, Qt::CaseSensitive);
    if (parts.isEmpty())
        return QDomElement();
    QDomNode current = node;
    for (const QString& part : parts) {
        QDomElement child = current.firstChildElement(part);
        if (child.isNull() && create)
            child = CreateChildElement(current, part);
        current = child;
        if (current.isNull())
            break;
    }
    return current.toElement();
}

QDomElement WidgetImp::GetElement(QDomNode node, const QString& path)
{
    return GetElement(node, path, false);
}

QDomElement WidgetImp::CreateElementIfNotExists(QDomNode node, const QString& path)
{
    return GetElement(node, path, true);
}

void WidgetImp::RemoveAllAttributes(QDomElement element)
{
    const QDomNamedNodeMap attributes = element.attributes();
    QStringList names;
    for (int i = 0; i < attributes.count(); ++i)
        names.append(attributes.item(i).nodeName());
    for (const QString& name : std::as_const(names))
        element.removeAttribute(name);
}

void WidgetImp::RemoveAllChildNodes(QDomNode node)
{
    while (node.hasChildNodes())
        node.removeChild(node.firstChild());
}

// ---- State -------------------------------------------------------------------

bool WidgetImp::LoadState(const QString& filePath, const QString& nodePath)
{
    // A file that can't be read, or isn't XML, holds no element at any path.
    Kavrel::UICore::XmlFiler filer;
    if (!filer.Open(filePath))
        return false;
    QDomElement element = GetElement(filer.GetCurrentElement(), nodePath);
    if (element.isNull())
        return false;
    LoadState(element);
    return true;
}

bool WidgetImp::SaveState(const QString& filePath, const QString& nodePath) const
{
    if (nodePath.split(QLatin1Char('/'), Qt::SkipEmptyParts).isEmpty())
        return false;
    // The filer reads the file afresh under its lock, so the states other
    // widgets or processes saved meanwhile are kept.
    Kavrel::UICore::XmlFiler filer;
    return filer.Update(filePath, [&](Kavrel::UICore::XmlFiler& file) {
        QDomElement element = CreateElementIfNotExists(file.GetCurrentElement(), nodePath);
        if (element.isNull())
            return false;
        // Nothing of an earlier write may mix with the new state.
        RemoveAllAttributes(element);
        RemoveAllChildNodes(element);
        SaveState(element);
        return true;
    });
}

QString WidgetImp::SaveState()
{
    const QString tag = StateNodeId();
    if (tag.isEmpty())
        return QString();
    QDomDocument document;
    QDomElement element = document.createElement(tag);
    SaveState(element);
    document.appendChild(element);
    return document.toString(1);
}

bool WidgetImp::LoadState(const QString& xml)
{
    Kavrel::UICore::XmlFiler filer;
    if (!filer.Parse(xml))
        return false;
    QDomElement element = filer.GetCurrentElement();
    LoadState(element);
    return true;
}
