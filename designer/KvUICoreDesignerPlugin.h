#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QIcon>
#include <QObject>

namespace Kavrel::UICore::Designer {

// What Designer shows and creates for one control.
struct ControlDescription
{
    const char* className; // the C++ name, namespace included
    const char* header;    // the public header, as a host includes it (global form)
    const char* iconFile;  // a file of the library's icon set
    const char* toolTip;
    const char* domXml; // the control as dropped: object name, geometry, starting properties
    bool container;
    QWidget* (*create)(QWidget* parent);
};

// One control of the widget box, described by a ControlDescription.
class ControlInterface : public QDesignerCustomWidgetInterface
{
public:
    explicit ControlInterface(const ControlDescription& description);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface* core) override;
    QString domXml() const override;

private:
    const ControlDescription& mDescription;
    bool mbInitialized = false;
};

// The plugin: every control of the library in a "KvUICore" group.
class ControlCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit ControlCollection(QObject* parent = nullptr);
    ~ControlCollection() override;

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    QList<QDesignerCustomWidgetInterface*> mControls;
};

} // namespace Kavrel::UICore::Designer
