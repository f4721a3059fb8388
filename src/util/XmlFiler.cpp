#include <KvUICore/util/Diagnostics_p.h>
#include <KvUICore/util/TranslationTable.h>
#include <KvUICore/util/XmlFiler.h>
#include <KvUICore/util/XmlFilerReadLog_p.h>
#include <KvUICore/util/XmlLimits_p.h>

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringConverter>
#include <QStringList>
#include <QTextStream>

#include <limits>
#include <vector>

namespace Kavrel::UICore {

namespace {

// How long a save waits for another process's lock, and when a lock whose
// owner can't be asked is taken as left behind.
constexpr int kLockWaitMs = 10000;
constexpr int kStaleLockMs = 30000;

enum class FileRead
{
    Ok,
    Missing,
    Failed
};

void Report(const QString& text)
{
    Internal::WriteDiagnostic(Internal::DiagnosticChannel::Filer, QtWarningMsg, QStringLiteral("XmlFiler: ") + text);
}

// Parses within the limits; `source` names the input in the diagnostic.
template <typename Input> bool ParseLimited(const Input& input, const QString& source, QDomDocument* document)
{
    static constexpr Internal::XmlLimits limits{XmlFiler::kMaxDepth, XmlFiler::kMaxAttributes, XmlFiler::kMaxNodes};
    const QString limit = Internal::XmlLimitReached(input, limits);
    if (!limit.isEmpty()) {
        Report(QStringLiteral("Refused %1: %2.").arg(source, limit));
        return false;
    }
    QDomDocument parsed;
    if (!parsed.setContent(input, false))
        return false;
    *document = parsed;
    return true;
}

// Reads a regular file of at most kMaxFileSize bytes. A file that is missing
// is no error; anything else that fails is reported.
FileRead ReadFileBytes(const QString& fileName, QByteArray* bytes)
{
    const QFileInfo info(fileName);
    if (!info.exists())
        return FileRead::Missing;
    // Opening a pipe would wait for a writer, and a device has no end.
    if (!info.isFile()) {
        Report(QStringLiteral("Failed to open file %1. Not a regular file (Error code: %2)")
                   .arg(fileName)
                   .arg(int(QFileDevice::OpenError)));
        return FileRead::Failed;
    }
    const QString tooLarge =
        QStringLiteral("Refused %1: the file is larger than %2 bytes.").arg(fileName).arg(XmlFiler::kMaxFileSize);
    if (info.size() > XmlFiler::kMaxFileSize) {
        Report(tooLarge);
        return FileRead::Failed;
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        Report(QStringLiteral("Failed to open file %1. %2 (Error code: %3)")
                   .arg(fileName, file.errorString(), QString::number(int(file.error()))));
        return FileRead::Failed;
    }
    // The file may have grown since it was looked at.
    *bytes = file.read(XmlFiler::kMaxFileSize + 1);
    if (bytes->size() > XmlFiler::kMaxFileSize) {
        bytes->clear();
        Report(tooLarge);
        return FileRead::Failed;
    }
    return FileRead::Ok;
}

size_t Fingerprint(const QByteArray& bytes)
{
    return qHash(bytes, 0);
}

QDomDocument NewDocument()
{
    QDomDocument document;
    const QDomElement root = document.createElement(QStringLiteral("Root"));
    document.appendChild(root);
    return document;
}

bool IsDeclaration(const QDomNode& node)
{
    return node.isProcessingInstruction() && node.nodeName() == QLatin1String("xml");
}

// Levels of element nesting, counted without recursion.
int Depth(const QDomNode& top)
{
    int depth = 0;
    int deepest = 0;
    QDomNode node = top.firstChild();
    while (!node.isNull()) {
        if (node.isElement())
            deepest = qMax(deepest, depth + 1);
        if (node.hasChildNodes()) {
            node = node.firstChild();
            ++depth;
            continue;
        }
        while (!node.isNull() && node != top && node.nextSibling().isNull()) {
            node = node.parentNode();
            --depth;
        }
        if (node.isNull() || node == top)
            break;
        node = node.nextSibling();
    }
    return deepest;
}

// One child as reading it back would see it: adjacent texts run together and
// text of blanks alone drops out, as the DOM parser does.
struct ReadChild
{
    QDomNode node;
    QString text;
    bool isText = false;
};

std::vector<ReadChild> ChildrenAsRead(const QDomNode& parent)
{
    std::vector<ReadChild> children;
    QString pending;
    bool hasPending = false;
    const auto flush = [&] {
        if (hasPending && !pending.trimmed().isEmpty())
            children.push_back({QDomNode(), pending, true});
        pending.clear();
        hasPending = false;
    };
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isText() && !child.isCDATASection()) {
            pending += child.nodeValue();
            hasPending = true;
            continue;
        }
        flush();
        if (!IsDeclaration(child))
            children.push_back({child, QString(), false});
    }
    flush();
    return children;
}

bool SameNode(const QDomNode& a, const QDomNode& b)
{
    if (a.nodeType() != b.nodeType() || a.nodeName() != b.nodeName())
        return false;
    if (a.isElement()) {
        const QDomNamedNodeMap attributesA = a.attributes();
        const QDomNamedNodeMap attributesB = b.attributes();
        if (attributesA.count() != attributesB.count())
            return false;
        for (int i = 0; i < attributesA.count(); ++i) {
            const QDomNode attribute = attributesA.item(i);
            const QDomNode other = attributesB.namedItem(attribute.nodeName());
            if (other.isNull() || other.nodeValue() != attribute.nodeValue())
                return false;
        }
        return true;
    }
    if (a.isDocumentType()) {
        const QDomDocumentType typeA = a.toDocumentType();
        const QDomDocumentType typeB = b.toDocumentType();
        return typeA.publicId() == typeB.publicId() && typeA.systemId() == typeB.systemId();
    }
    return a.nodeValue() == b.nodeValue();
}

// Whether two documents read the same, compared without recursion.
bool SameDocument(const QDomDocument& a, const QDomDocument& b)
{
    std::vector<std::pair<QDomNode, QDomNode>> pending{{a, b}};
    while (!pending.empty()) {
        const auto [nodeA, nodeB] = pending.back();
        pending.pop_back();
        const std::vector<ReadChild> childrenA = ChildrenAsRead(nodeA);
        const std::vector<ReadChild> childrenB = ChildrenAsRead(nodeB);
        if (childrenA.size() != childrenB.size())
            return false;
        for (size_t i = 0; i < childrenA.size(); ++i) {
            const ReadChild& childA = childrenA[i];
            const ReadChild& childB = childrenB[i];
            if (childA.isText || childB.isText) {
                if (childA.isText != childB.isText || childA.text != childB.text)
                    return false;
                continue;
            }
            if (!SameNode(childA.node, childB.node))
                return false;
            if (childA.node.hasChildNodes() || childB.node.hasChildNodes())
                pending.emplace_back(childA.node, childB.node);
        }
    }
    return true;
}

// The n-th child element of that name.
QDomElement NthChild(const QDomNode& parent, const QString& name, int n)
{
    QDomElement child = parent.firstChildElement(name);
    for (int i = 0; i < n && !child.isNull(); ++i)
        child = child.nextSiblingElement(name);
    return child;
}

int RemoveChildNodes(QDomNode parent, const QString& name)
{
    int removed = 0;
    QDomNode child = parent.firstChild();
    while (!child.isNull()) {
        const QDomNode next = child.nextSibling();
        if (name.isEmpty() || (child.isElement() && child.toElement().tagName() == name)) {
            parent.removeChild(child);
            ++removed;
        }
        child = next;
    }
    return removed;
}

void ReplaceText(QDomDocument& document, QDomElement element, const QString& text, bool asCData)
{
    QDomNode child = element.firstChild();
    while (!child.isNull()) {
        const QDomNode next = child.nextSibling();
        if (child.isText() || child.isCDATASection())
            element.removeChild(child);
        child = next;
    }
    if (text.isEmpty())
        return;
    if (!asCData && !text.trimmed().isEmpty()) {
        element.appendChild(document.createTextNode(text));
        return;
    }
    // "]]>" can't stand inside one section: it is split between two.
    const QStringList pieces = text.split(QLatin1String("]]>"));
    for (int i = 0; i < pieces.size(); ++i) {
        QString piece = pieces.at(i);
        if (i > 0)
            piece.prepend(QLatin1Char('>'));
        if (i + 1 < pieces.size())
            piece.append(QLatin1String("]]"));
        element.appendChild(document.createCDATASection(piece));
    }
}

// Parses a fragment and appends its nodes; the appended nodes, or an empty
// list when the fragment doesn't parse.
QList<QDomNode> AppendFragment(QDomDocument& document, QDomElement element, const QString& fragment, bool* ok)
{
    QList<QDomNode> appended;
    QDomDocument wrapper;
    *ok = ParseLimited(QString(QLatin1String("<Root>") + fragment + QLatin1String("</Root>")),
                       QStringLiteral("the XML fragment"), &wrapper);
    if (!*ok)
        return appended;
    const QDomNodeList children = wrapper.documentElement().childNodes();
    for (int i = 0; i < children.count(); ++i)
        appended.append(element.appendChild(document.importNode(children.at(i), true)));
    return appended;
}

} // namespace

class XmlFilerImp
{
public:
    // An element named by its path: each step is an element, its name and its
    // position among the siblings of that name.
    struct Step
    {
        QDomElement element;
        QString name;
        int index = 0;
    };
    using Address = QList<Step>;

    // One change made through the filer, kept for replaying onto a file that
    // another writer changed meanwhile.
    struct Change
    {
        enum Kind
        {
            SetAttribute,
            RemoveAttribute,
            AppendElement,
            EnsureElement,
            RemoveElement,
            RemoveChildren,
            InsertFragment,
            ElementText
        };
        Kind kind;
        Address address; // the element changed; the parent for new elements
        QString name;
        QString value;
        bool flag = false;
        QList<QDomNode> created;
    };

    QString msFileName;
    QDomDocument mDocument;
    QDomNode mCurrentNode;
    QList<QDomNode> mRememberedNodes;
    bool mbModified = false;
    QDateTime mLastSaveTime;
    TranslationTable* mpTranslationTable = nullptr;
    bool mbTranslate = true;
    // The file as this filer last read or wrote it, and the changes since.
    bool mbBaseMissing = true;
    size_t mBaseFingerprint = 0;
    QList<Change> mChanges;
    // The root of the innermost RootScope; null without one.
    QDomElement mScopedRoot;

    // What a RootScope replaced, put back when it ends.
    struct SavedScope
    {
        QDomDocument mDocument;
        QDomElement mScopedRoot;
        QDomNode mCurrentNode;
        QList<QDomNode> mRememberedNodes;
    };
    QList<SavedScope> mSavedScopes;

    // The attribute names asked for while an AttributeReadLog lives.
    QStringList* mpReadNames = nullptr;

    QDomElement Current() const { return mCurrentNode.toElement(); }

    QDomElement Root() const { return mScopedRoot.isNull() ? mDocument.documentElement() : mScopedRoot; }

    // The raw attribute value; present tells whether the attribute exists.
    QString Attribute(const QString& name, bool* present = nullptr) const
    {
        if (mpReadNames)
            mpReadNames->append(name);
        const QDomElement element = Current();
        const bool has = !element.isNull() && element.hasAttribute(name);
        if (present)
            *present = has;
        return has ? element.attribute(name) : QString();
    }

    bool SetAttribute(const QString& name, const QString& value)
    {
        QDomElement element = Current();
        if (element.isNull() || name.isEmpty())
            return false;
        element.setAttribute(name, value);
        Record(Change::SetAttribute, element, name, value);
        mbModified = true;
        return true;
    }

    void Reset()
    {
        mDocument = QDomDocument();
        mScopedRoot = QDomElement();
        mCurrentNode = QDomNode();
        mRememberedNodes.clear();
        mbModified = false;
        mChanges.clear();
    }

    void Adopt(const QDomDocument& document, const QString& fileName, const QByteArray* bytes)
    {
        Reset();
        mDocument = document;
        mScopedRoot = QDomElement();
        mCurrentNode = mDocument.documentElement();
        msFileName = fileName;
        mbBaseMissing = bytes == nullptr;
        mBaseFingerprint = bytes ? Fingerprint(*bytes) : 0;
    }

    // Gives a document without a document element its "Root" and declaration.
    void EnsureRoot()
    {
        if (!mDocument.documentElement().isNull())
            return;
        const QDomElement root = mDocument.createElement(QStringLiteral("Root"));
        mDocument.appendChild(root);
        bool hasDeclaration = false;
        for (QDomNode node = mDocument.firstChild(); !node.isNull(); node = node.nextSibling())
            hasDeclaration = hasDeclaration || IsDeclaration(node);
        if (!hasDeclaration)
            mDocument.insertBefore(
                mDocument.createProcessingInstruction(QStringLiteral("xml"), QStringLiteral("version=\"1.0\"")), root);
        mCurrentNode = root;
        mbModified = true;
    }

    // ---- Changes and their replay ---------------------------------------------

    static Address AddressOf(const QDomElement& element)
    {
        Address address;
        for (QDomElement current = element; !current.isNull(); current = current.parentNode().toElement()) {
            int index = 0;
            for (QDomElement sibling = current.previousSiblingElement(current.tagName()); !sibling.isNull();
                 sibling = sibling.previousSiblingElement(current.tagName()))
                ++index;
            address.prepend({current, current.tagName(), index});
        }
        return address;
    }

    void Record(Change::Kind kind, const QDomElement& element, const QString& name = QString(),
                const QString& value = QString(), bool flag = false, const QList<QDomNode>& created = {})
    {
        // Only a filer with a file can meet another writer's changes.
        if (msFileName.isEmpty())
            return;
        mChanges.append({kind, element.isNull() ? Address() : AddressOf(element), name, value, flag, created});
    }

    struct Replay
    {
        QDomDocument document;
        std::vector<std::pair<QDomNode, QDomNode>> counterparts; // created here, there

        QDomNode CounterpartOf(const QDomNode& node) const
        {
            for (const auto& [mine, theirs] : counterparts) {
                if (mine == node)
                    return theirs;
            }
            return QDomNode();
        }

        QDomElement Resolve(const Address& address, bool create)
        {
            QDomElement current;
            for (int i = 0; i < address.size(); ++i) {
                const Step& step = address.at(i);
                const QDomNode counterpart = CounterpartOf(step.element);
                if (!counterpart.isNull()) {
                    current = counterpart.toElement();
                    continue;
                }
                if (i == 0) {
                    current = document.documentElement();
                    if (current.isNull() || current.tagName() != step.name)
                        return QDomElement();
                    continue;
                }
                QDomElement child = NthChild(current, step.name, step.index);
                if (child.isNull()) {
                    // Gone from the file: the change brings its element back.
                    if (!create)
                        return QDomElement();
                    child = document.createElement(step.name);
                    current.appendChild(child);
                }
                current = child;
            }
            return current;
        }

        bool Apply(const Change& change)
        {
            const bool creates = change.kind == Change::SetAttribute || change.kind == Change::AppendElement ||
                                 change.kind == Change::EnsureElement || change.kind == Change::InsertFragment ||
                                 change.kind == Change::ElementText;
            QDomElement element;
            if (!change.address.isEmpty()) {
                element = Resolve(change.address, creates);
                if (element.isNull())
                    return !creates;
            }
            switch (change.kind) {
            case Change::SetAttribute:
                element.setAttribute(change.name, change.value);
                return true;
            case Change::RemoveAttribute:
                element.removeAttribute(change.name);
                return true;
            case Change::AppendElement:
            case Change::EnsureElement: {
                QDomElement created;
                if (element.isNull()) {
                    created = document.documentElement();
                    if (created.isNull()) {
                        created = document.createElement(change.name);
                        document.appendChild(created);
                    } else if (created.tagName() != change.name) {
                        return false;
                    }
                } else {
                    if (change.kind == Change::EnsureElement)
                        created = element.firstChildElement(change.name);
                    if (created.isNull())
                        created = element.appendChild(document.createElement(change.name)).toElement();
                }
                counterparts.emplace_back(change.created.value(0), created);
                return true;
            }
            case Change::RemoveElement:
                if (!element.isNull())
                    element.parentNode().removeChild(element);
                return true;
            case Change::RemoveChildren:
                RemoveChildNodes(element, change.name);
                return true;
            case Change::InsertFragment: {
                bool ok = false;
                const QList<QDomNode> appended = AppendFragment(document, element, change.value, &ok);
                for (int i = 0; i < appended.size() && i < change.created.size(); ++i)
                    counterparts.emplace_back(change.created.at(i), appended.at(i));
                return ok;
            }
            case Change::ElementText:
                ReplaceText(document, element, change.value, change.flag);
                return true;
            }
            return false;
        }

        // Where a node of the replayed document ended up in this one.
        QDomNode Locate(const QDomNode& node)
        {
            if (node.isNull() || !node.isElement())
                return QDomNode();
            const QDomNode counterpart = CounterpartOf(node);
            return counterpart.isNull() ? Resolve(AddressOf(node.toElement()), false) : counterpart;
        }
    };

    // Replays the changes onto the file's new content and takes it over.
    bool MergeInto(const QDomDocument& theirs)
    {
        Replay replay{theirs, {}};
        for (const Change& change : std::as_const(mChanges)) {
            if (!replay.Apply(change))
                return false;
        }
        QDomNode current = replay.Locate(mCurrentNode);
        if (current.isNull())
            current = theirs.documentElement();
        for (QDomNode& remembered : mRememberedNodes) {
            remembered = replay.Locate(remembered);
            if (remembered.isNull())
                remembered = theirs.documentElement();
        }
        // The changes stay until a save commits: should this one fail, the
        // next replays them all onto whatever the file holds by then.
        mDocument = theirs;
        mCurrentNode = current;
        return true;
    }

    // ---- Writing -----------------------------------------------------------------

    // The encoding named by the XML declaration; UTF-8 without one.
    QString DeclaredEncoding() const
    {
        const QDomNode first = mDocument.firstChild();
        if (IsDeclaration(first)) {
            const QRegularExpressionMatch match = EncodingPattern().match(first.toProcessingInstruction().data());
            if (match.hasMatch())
                return match.captured(2);
        }
        return QStringLiteral("UTF-8");
    }

    static const QRegularExpression& EncodingPattern()
    {
        // Group 1: up to the opening quote; group 2: the name.
        static const QRegularExpression pattern(QStringLiteral("(encoding\\s*=\\s*[\"'])([^\"']*)"));
        return pattern;
    }

    // The document's bytes in its declared encoding. Text the encoding can't
    // hold, or an encoding that isn't known, would be lost or garbled: the
    // document is then written as UTF-8 and its declaration says so.
    QByteArray Serialize() const
    {
        QString text;
        {
            QTextStream stream(&text);
            mDocument.save(stream, 4, QDomNode::EncodingFromDocument);
        }
        const QString encoding = DeclaredEncoding();
        QStringEncoder encoder(encoding.toLatin1().constData());
        if (encoder.isValid()) {
            QByteArray bytes = encoder.encode(text);
            if (!encoder.hasError())
                return bytes;
        }
        const qsizetype end = text.indexOf(QLatin1String("?>"));
        if (text.startsWith(QLatin1String("<?xml")) && end > 0) {
            QString declaration = text.left(end);
            declaration.replace(EncodingPattern(), QStringLiteral("\\1UTF-8"));
            text.replace(0, end, declaration);
        }
        return text.toUtf8();
    }

    // The bytes of the document, provided they read back as the same
    // document; otherwise false, with a diagnostic naming the file.
    static bool SerializeVerified(const XmlFilerImp& imp, const QString& fileName, QByteArray* bytes)
    {
        // Writing recurses once per level: the depth is checked first.
        if (Depth(imp.mDocument) > XmlFiler::kMaxDepth) {
            Report(QStringLiteral("Failed to save file %1. Elements nest deeper than %2 levels.")
                       .arg(fileName)
                       .arg(XmlFiler::kMaxDepth));
            return false;
        }
        *bytes = imp.Serialize();
        QDomDocument reread;
        if (!ParseLimited(*bytes, fileName, &reread) || !SameDocument(imp.mDocument, reread)) {
            Report(QStringLiteral("Failed to save file %1. The document would not read back as it is "
                                  "(a name that is no XML name, a comment holding \"--\", a character XML "
                                  "can't hold, or a processing instruction before text).")
                       .arg(fileName));
            return false;
        }
        return true;
    }

    // Reads `fileName` for writing it back: a missing or empty file gives a
    // new document; anything that can't be read fails, and with `verify` so
    // does a document that wouldn't be written back unchanged. Callers that
    // save at once leave that to the save.
    static bool ReadForUpdate(const QString& fileName, QDomDocument* document, QByteArray* bytes, bool* missing,
                              bool verify)
    {
        switch (ReadFileBytes(fileName, bytes)) {
        case FileRead::Failed:
            return false;
        case FileRead::Missing:
            *missing = true;
            *document = QDomDocument();
            return true;
        case FileRead::Ok:
            break;
        }
        *missing = false;
        if (bytes->trimmed().isEmpty()) {
            *document = QDomDocument();
            return true;
        }
        if (!ParseLimited(*bytes, fileName, document))
            return false;
        if (!verify)
            return true;
        XmlFilerImp probe;
        probe.mDocument = *document;
        QByteArray written;
        if (!SerializeVerified(probe, fileName, &written)) {
            Report(QStringLiteral("Refused %1: the file would not be saved back as it was read.").arg(fileName));
            return false;
        }
        return true;
    }

    bool IsOwnFile(const QString& fileName) const
    {
        return !msFileName.isEmpty() &&
               QFileInfo(fileName).absoluteFilePath() == QFileInfo(msFileName).absoluteFilePath();
    }

    // The one way a document reaches a file: under the file's lock, merged
    // with what another writer saved meanwhile, verified, then swapped in
    // whole. `locked` tells that the caller holds the lock already.
    bool WriteFile(const QString& fileName, bool locked = false)
    {
        if (mDocument.isNull() || mDocument.documentElement().isNull() || fileName.isEmpty())
            return false;
        QLockFile lock(fileName + QLatin1String(".lock"));
        if (!locked && !Lock(&lock, fileName))
            return false;
        const bool own = IsOwnFile(fileName);
        if (own && !locked && !MergeWithFile(fileName))
            return false;
        QByteArray bytes;
        if (!SerializeVerified(*this, fileName, &bytes))
            return false;
        // The temporary file replaces the target only on commit, so an
        // interrupted save never leaves a truncated file behind. There is no
        // writing in place where no temporary file can be made.
        QSaveFile file(fileName);
        file.setDirectWriteFallback(false);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return false;
        if (file.write(bytes) != bytes.size()) {
            file.cancelWriting();
            return false;
        }
        if (!file.commit())
            return false;
        if (own) {
            mbBaseMissing = false;
            mBaseFingerprint = Fingerprint(bytes);
            mChanges.clear();
        }
        return true;
    }

    static bool Lock(QLockFile* lock, const QString& fileName)
    {
        lock->setStaleLockTime(kStaleLockMs);
        if (lock->tryLock(kLockWaitMs))
            return true;
        Report(QStringLiteral("Failed to save file %1. Its lock file can't be had (Error code: %2)")
                   .arg(fileName)
                   .arg(int(lock->error())));
        return false;
    }

    // Takes in what another writer saved since this filer read the file.
    bool MergeWithFile(const QString& fileName)
    {
        QDomDocument theirs;
        QByteArray bytes;
        bool missing = false;
        if (!ReadForUpdate(fileName, &theirs, &bytes, &missing, false)) {
            Report(QStringLiteral("Failed to save file %1. It was changed by another writer in a way that can't "
                                  "be merged.")
                       .arg(fileName));
            return false;
        }
        if (missing ? mbBaseMissing : !mbBaseMissing && Fingerprint(bytes) == mBaseFingerprint)
            return true;
        // Removed by someone else: what this filer holds is all there is.
        if (missing)
            return true;
        if (theirs.documentElement().isNull())
            theirs = NewDocument();
        if (!MergeInto(theirs)) {
            Report(QStringLiteral("Failed to save file %1. It was changed by another writer in a way that can't "
                                  "be merged.")
                       .arg(fileName));
            return false;
        }
        return true;
    }

    static QStringList SplitPath(const QString& path, bool* absolute)
    {
        QString normalised = path.trimmed();
        normalised.replace(QLatin1Char('\\'), QLatin1Char('/'));
        *absolute = normalised.startsWith(QLatin1Char('/'));
        return normalised.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    }

    static QDomElement FirstChild(const QDomNode& node, const QString& name)
    {
        return name.isEmpty() ? node.firstChildElement() : node.firstChildElement(name);
    }

    // The parent element; none above a scoped root.
    QDomElement Parent(const QDomNode& node) const
    {
        if (!mScopedRoot.isNull() && node == mScopedRoot)
            return QDomElement();
        return node.parentNode().toElement();
    }

    // Walks a path; creates missing components when create is set.
    bool WalkPath(const QString& path, bool create)
    {
        if (path.trimmed().isEmpty())
            return true;
        bool absolute = false;
        const QStringList components = SplitPath(path, &absolute);
        if (create) {
            for (const QString& component : components) {
                if (!IsNavigation(component) && !IsValidName(component))
                    return false;
            }
        }
        QDomElement element;
        int first = 0;
        if (absolute) {
            element = Root();
            if (!components.isEmpty()) {
                if (IsNavigation(components.first()))
                    return false;
                if (element.isNull()) {
                    if (!create)
                        return false;
                    element = mDocument.createElement(components.first());
                    mDocument.appendChild(element);
                    Record(Change::EnsureElement, QDomElement(), components.first(), QString(), false, {element});
                    mbModified = true;
                } else if (element.tagName() != components.first()) {
                    return false;
                }
                first = 1;
            }
            if (element.isNull())
                return false;
        } else {
            element = Current();
            if (element.isNull())
                return false;
        }
        for (int i = first; i < components.size(); ++i) {
            const QString& component = components.at(i);
            if (component == QLatin1String("."))
                continue;
            QDomElement next =
                component == QLatin1String("..") ? Parent(element) : element.firstChildElement(component);
            if (next.isNull()) {
                if (!create || component == QLatin1String(".."))
                    return false;
                next = mDocument.createElement(component);
                element.appendChild(next);
                Record(Change::EnsureElement, element, component, QString(), false, {next});
                mbModified = true;
            }
            element = next;
        }
        mCurrentNode = element;
        return true;
    }

    static bool IsNavigation(const QString& component)
    {
        return component == QLatin1String(".") || component == QLatin1String("..");
    }

    static bool IsValidName(const QString& name)
    {
        // XML names: a letter, "_" or ":" first, then letters, digits and ".-_:".
        static const QRegularExpression pattern(QStringLiteral("^[\\p{L}_:][\\p{L}\\p{N}\\p{Mn}\\p{Mc}._:\\-]*$"));
        return !name.isEmpty() && pattern.match(name).hasMatch();
    }

    template <typename T, typename Convert> T ReadNumber(const QString& name, T defaultValue, Convert convert) const
    {
        const QString text = Attribute(name).trimmed();
        if (text.isEmpty())
            return defaultValue;
        bool ok = false;
        T value;
        if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
            value = convert(text.mid(2), &ok, 16);
        else if (text.startsWith(QLatin1String("-0x"), Qt::CaseInsensitive) && std::numeric_limits<T>::is_signed)
            value = T(-convert(text.mid(3), &ok, 16));
        else
            value = convert(text, &ok, 10);
        return ok ? value : defaultValue;
    }

    // Integers separated by commas; false unless exactly count of them parse.
    bool ReadIntegers(const QString& name, int count, int* values) const
    {
        const QStringList parts = Attribute(name).split(QLatin1Char(','));
        if (parts.size() != count)
            return false;
        for (int i = 0; i < count; ++i) {
            bool ok = false;
            values[i] = parts.at(i).trimmed().toInt(&ok);
            if (!ok)
                return false;
        }
        return true;
    }
};

XmlFiler::XmlFiler()
    : mpImp(std::make_unique<XmlFilerImp>())
{}

XmlFiler::~XmlFiler() = default;

bool XmlFiler::Open(const QString& fileName)
{
    if (fileName.isEmpty())
        return false;
    QByteArray bytes;
    const FileRead read = ReadFileBytes(fileName, &bytes);
    if (read == FileRead::Missing)
        return false;
    QDomDocument document;
    if (read == FileRead::Failed || !ParseLimited(bytes, fileName, &document)) {
        mpImp->Reset();
        return false;
    }
    mpImp->Adopt(document, fileName, &bytes);
    return true;
}

bool XmlFiler::Parse(const QString& text)
{
    QDomDocument document;
    if (text.size() > kMaxFileSize) {
        Report(QStringLiteral("Refused the XML text: it is longer than %1 characters.").arg(kMaxFileSize));
        return false;
    }
    if (!ParseLimited(text, QStringLiteral("the XML text"), &document))
        return false;
    // Text has no file: a later Save() must not overwrite the one opened before.
    mpImp->Adopt(document, QString(), nullptr);
    return true;
}

bool XmlFiler::OpenOrCreate(const QString& fileName)
{
    if (fileName.isEmpty())
        return false;
    QDomDocument document;
    QByteArray bytes;
    bool missing = false;
    if (!XmlFilerImp::ReadForUpdate(fileName, &document, &bytes, &missing, true)) {
        mpImp->Reset();
        return false;
    }
    mpImp->Adopt(document, fileName, missing ? nullptr : &bytes);
    mpImp->EnsureRoot();
    return true;
}

bool XmlFiler::Save(const QString& fileName)
{
    if (!mpImp->WriteFile(fileName))
        return false;
    if (mpImp->IsOwnFile(fileName)) {
        mpImp->mbModified = false;
        mpImp->mLastSaveTime = QDateTime::currentDateTime();
    }
    return true;
}

bool XmlFiler::Save()
{
    return Save(mpImp->msFileName);
}

bool XmlFiler::SaveIfModified()
{
    if (!mpImp->mbModified || mpImp->mDocument.documentElement().isNull())
        return true;
    return Save();
}

bool XmlFiler::Update(const QString& fileName, const std::function<bool(XmlFiler&)>& change)
{
    if (fileName.isEmpty() || !change)
        return false;
    QLockFile lock(fileName + QLatin1String(".lock"));
    if (!XmlFilerImp::Lock(&lock, fileName))
        return false;
    QDomDocument document;
    QByteArray bytes;
    bool missing = false;
    if (!XmlFilerImp::ReadForUpdate(fileName, &document, &bytes, &missing, false)) {
        mpImp->Reset();
        return false;
    }
    mpImp->Adopt(document, fileName, missing ? nullptr : &bytes);
    mpImp->EnsureRoot();
    if (!change(*this) || !mpImp->WriteFile(fileName, true))
        return false;
    mpImp->mbModified = false;
    mpImp->mLastSaveTime = QDateTime::currentDateTime();
    return true;
}

QString XmlFiler::ToString() const
{
    if (mpImp->mDocument.documentElement().isNull() || Depth(mpImp->mDocument) > kMaxDepth)
        return QString();
    return mpImp->mDocument.toString(1);
}

QString XmlFiler::GetFileName() const
{
    return mpImp->msFileName;
}

QDomDocument XmlFiler::GetDocument() const
{
    return mpImp->mDocument;
}

QDomElement XmlFiler::GetCurrentElement() const
{
    return mpImp->Current();
}

bool XmlFiler::SetCurrentElement(const QDomElement& element)
{
    if (element.isNull() || element.ownerDocument() != mpImp->mDocument)
        return false;
    mpImp->mCurrentNode = element;
    return true;
}

QString XmlFiler::GetElementName() const
{
    return mpImp->Current().tagName();
}

bool XmlFiler::IsModified() const
{
    return mpImp->mbModified;
}

void XmlFiler::SetModified(bool modified)
{
    mpImp->mbModified = modified;
}

QDateTime XmlFiler::GetLastSaveTime() const
{
    return mpImp->mLastSaveTime;
}

void XmlFiler::SetTranslationTable(TranslationTable* table)
{
    mpImp->mpTranslationTable = table;
}

TranslationTable* XmlFiler::GetTranslationTable() const
{
    return mpImp->mpTranslationTable;
}

void XmlFiler::SetTranslate(bool translate)
{
    mpImp->mbTranslate = translate;
}

bool XmlFiler::IsTranslate() const
{
    return mpImp->mbTranslate;
}

bool XmlFiler::GoToDocumentElement()
{
    const QDomElement root = mpImp->Root();
    if (root.isNull())
        return false;
    mpImp->mCurrentNode = root;
    return true;
}

bool XmlFiler::GoToFirstChild()
{
    return GoToFirstChild(QString());
}

bool XmlFiler::GoToFirstChild(const QString& name)
{
    if (mpImp->mCurrentNode.isNull())
        return false;
    const QDomElement child = XmlFilerImp::FirstChild(mpImp->mCurrentNode, name);
    if (child.isNull())
        return false;
    mpImp->mCurrentNode = child;
    return true;
}

bool XmlFiler::GoToNextSibling()
{
    return GoToNextSibling(QString());
}

bool XmlFiler::GoToNextSibling(const QString& name)
{
    if (mpImp->mCurrentNode.isNull())
        return false;
    const QDomElement sibling =
        name.isEmpty() ? mpImp->mCurrentNode.nextSiblingElement() : mpImp->mCurrentNode.nextSiblingElement(name);
    if (sibling.isNull())
        return false;
    mpImp->mCurrentNode = sibling;
    return true;
}

bool XmlFiler::GoToParent()
{
    const QDomElement parent = mpImp->Parent(mpImp->mCurrentNode);
    if (parent.isNull())
        return false;
    mpImp->mCurrentNode = parent;
    return true;
}

bool XmlFiler::GoToPath(const QString& path)
{
    return mpImp->WalkPath(path, false);
}

QDomElement XmlFiler::GetRootElement() const
{
    return mpImp->Root();
}

XmlFiler::RootScope::RootScope(XmlFiler& filer, const QDomElement& root)
    : mFiler(filer)
    , mbActive(!root.isNull())
{
    if (!mbActive)
        return;
    XmlFilerImp& imp = *filer.mpImp;
    imp.mSavedScopes.append({imp.mDocument, imp.mScopedRoot, imp.mCurrentNode, imp.mRememberedNodes});
    // The node's own document is shared, not copied: reads see it as it is.
    imp.mDocument = root.ownerDocument();
    imp.mScopedRoot = root;
    imp.mCurrentNode = root;
    imp.mRememberedNodes.clear();
}

XmlFiler::RootScope::~RootScope()
{
    if (!mbActive)
        return;
    XmlFilerImp& imp = *mFiler.mpImp;
    const XmlFilerImp::SavedScope saved = imp.mSavedScopes.takeLast();
    imp.mDocument = saved.mDocument;
    imp.mScopedRoot = saved.mScopedRoot;
    imp.mCurrentNode = saved.mCurrentNode;
    imp.mRememberedNodes = saved.mRememberedNodes;
}

void XmlFiler::RememberPosition()
{
    mpImp->mRememberedNodes.append(mpImp->mCurrentNode);
}

bool XmlFiler::RestorePosition()
{
    if (mpImp->mRememberedNodes.isEmpty())
        return false;
    mpImp->mCurrentNode = mpImp->mRememberedNodes.takeLast();
    return true;
}

int XmlFiler::GetChildElementCount() const
{
    int count = 0;
    for (QDomElement child = mpImp->mCurrentNode.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        ++count;
    return count;
}

bool XmlFiler::HasAttribute(const QString& name) const
{
    return mpImp->Current().hasAttribute(name);
}

QStringList XmlFiler::GetAttributeNames() const
{
    QStringList names;
    const QDomNamedNodeMap attributes = mpImp->Current().attributes();
    for (int i = 0; i < attributes.count(); ++i)
        names.append(attributes.item(i).nodeName());
    return names;
}

QString XmlFiler::ReadString(const QString& name, const QString& defaultValue) const
{
    bool present = false;
    const QString value = mpImp->Attribute(name, &present);
    return present ? Translate(value) : defaultValue;
}

int XmlFiler::ReadInt(const QString& name, int defaultValue) const
{
    return mpImp->ReadNumber<int>(name, defaultValue,
                                  [](const QString& s, bool* ok, int base) { return s.toInt(ok, base); });
}

uint XmlFiler::ReadUInt(const QString& name, uint defaultValue) const
{
    return mpImp->ReadNumber<uint>(name, defaultValue,
                                   [](const QString& s, bool* ok, int base) { return s.toUInt(ok, base); });
}

long XmlFiler::ReadLong(const QString& name, long defaultValue) const
{
    return mpImp->ReadNumber<long>(name, defaultValue,
                                   [](const QString& s, bool* ok, int base) { return s.toLong(ok, base); });
}

ulong XmlFiler::ReadULong(const QString& name, ulong defaultValue) const
{
    return mpImp->ReadNumber<ulong>(name, defaultValue,
                                    [](const QString& s, bool* ok, int base) { return s.toULong(ok, base); });
}

qlonglong XmlFiler::ReadLongLong(const QString& name, qlonglong defaultValue) const
{
    return mpImp->ReadNumber<qlonglong>(name, defaultValue,
                                        [](const QString& s, bool* ok, int base) { return s.toLongLong(ok, base); });
}

qulonglong XmlFiler::ReadULongLong(const QString& name, qulonglong defaultValue) const
{
    return mpImp->ReadNumber<qulonglong>(name, defaultValue,
                                         [](const QString& s, bool* ok, int base) { return s.toULongLong(ok, base); });
}

double XmlFiler::ReadDouble(const QString& name, double defaultValue) const
{
    const QString text = mpImp->Attribute(name).trimmed();
    if (text.isEmpty())
        return defaultValue;
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok ? value : defaultValue;
}

bool XmlFiler::ReadBool(const QString& name, bool defaultValue) const
{
    const QString text = mpImp->Attribute(name).trimmed();
    if (text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0 || text == QLatin1String("1"))
        return true;
    if (text.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0 || text == QLatin1String("0"))
        return false;
    return defaultValue;
}

QDateTime XmlFiler::ReadDateTime(const QString& name, const QDateTime& defaultValue) const
{
    const QString text = mpImp->Attribute(name).trimmed();
    if (text.isEmpty())
        return defaultValue;
    QDateTime value = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (!value.isValid())
        value = QDateTime::fromString(text, Qt::ISODate);
    return value.isValid() ? value : defaultValue;
}

QRect XmlFiler::ReadRect(const QString& name, const QRect& defaultValue) const
{
    int v[4];
    return mpImp->ReadIntegers(name, 4, v) ? QRect(v[0], v[1], v[2], v[3]) : defaultValue;
}

QSize XmlFiler::ReadSize(const QString& name, const QSize& defaultValue) const
{
    int v[2];
    return mpImp->ReadIntegers(name, 2, v) ? QSize(v[0], v[1]) : defaultValue;
}

QPoint XmlFiler::ReadPoint(const QString& name, const QPoint& defaultValue) const
{
    int v[2];
    return mpImp->ReadIntegers(name, 2, v) ? QPoint(v[0], v[1]) : defaultValue;
}

int XmlFiler::ReadEnum(const QString& name, const XmlWordTable& table, int defaultValue) const
{
    const QString text = mpImp->Attribute(name).trimmed();
    if (text.isEmpty())
        return defaultValue;
    for (const auto& [value, word] : table) {
        if (text.compare(word, Qt::CaseInsensitive) == 0)
            return value;
    }
    return defaultValue;
}

int XmlFiler::ReadFlags(const QString& name, const XmlWordTable& table, int defaultValue) const
{
    const QString text = mpImp->Attribute(name);
    if (text.trimmed().isEmpty())
        return defaultValue;
    QStringList words = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (QString& word : words)
        word = word.trimmed();
    bool matched = false;
    int result = 0;
    for (const auto& [value, word] : table) {
        if (words.contains(word, Qt::CaseInsensitive)) {
            result |= value;
            matched = true;
        }
    }
    return matched ? result : defaultValue;
}

QString XmlFiler::ReadElementText() const
{
    return mpImp->Current().text();
}

QByteArray XmlFiler::ReadBinary() const
{
    return QByteArray::fromBase64(mpImp->Current().text().toLatin1());
}

QString XmlFiler::ReadInnerXml() const
{
    const QDomElement element = mpImp->Current();
    if (Depth(element) > kMaxDepth)
        return QString();
    QString xml;
    QTextStream stream(&xml);
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling())
        child.save(stream, 4);
    stream.flush();
    return xml;
}

QString XmlFiler::ReadOuterXml() const
{
    const QDomElement element = mpImp->Current();
    if (element.isNull() || Depth(element) >= kMaxDepth)
        return QString();
    QString xml;
    QTextStream stream(&xml);
    element.save(stream, 4);
    stream.flush();
    return xml;
}

bool XmlFiler::CreateElement(const QString& name)
{
    if (!XmlFilerImp::IsValidName(name))
        return false;
    QDomDocument& document = mpImp->mDocument;
    QDomElement current = mpImp->Current();
    QDomElement element = document.createElement(name);
    if (current.isNull()) {
        if (!document.documentElement().isNull())
            return false;
        document.appendChild(element);
    } else {
        current.appendChild(element);
    }
    mpImp->Record(XmlFilerImp::Change::AppendElement, current, name, QString(), false, {element});
    mpImp->mCurrentNode = element;
    mpImp->mbModified = true;
    return true;
}

bool XmlFiler::CreatePath(const QString& path)
{
    return mpImp->WalkPath(path, true);
}

bool XmlFiler::RemoveCurrentElement()
{
    QDomNode node = mpImp->mCurrentNode;
    QDomNode parent = node.parentNode();
    if (node.isNull() || parent.isNull())
        return false;
    mpImp->Record(XmlFilerImp::Change::RemoveElement, node.toElement());
    parent.removeChild(node);
    mpImp->mCurrentNode = parent.isElement() ? parent : QDomNode();
    mpImp->mbModified = true;
    return true;
}

int XmlFiler::RemoveChildren(const QString& name)
{
    QDomNode current = mpImp->mCurrentNode;
    if (current.isNull())
        return 0;
    const int removed = RemoveChildNodes(current, name);
    if (removed > 0) {
        mpImp->Record(XmlFilerImp::Change::RemoveChildren, current.toElement(), name);
        mpImp->mbModified = true;
    }
    return removed;
}

bool XmlFiler::RemoveAttribute(const QString& name)
{
    QDomElement element = mpImp->Current();
    if (element.isNull() || !element.hasAttribute(name))
        return false;
    element.removeAttribute(name);
    mpImp->Record(XmlFilerImp::Change::RemoveAttribute, element, name);
    mpImp->mbModified = true;
    return true;
}

bool XmlFiler::InsertFragment(const QString& fragment)
{
    QDomElement current = mpImp->Current();
    if (current.isNull())
        return false;
    bool ok = false;
    const QList<QDomNode> appended = AppendFragment(mpImp->mDocument, current, fragment, &ok);
    if (!ok)
        return false;
    mpImp->Record(XmlFilerImp::Change::InsertFragment, current, QString(), fragment, false, appended);
    mpImp->mbModified = true;
    return true;
}

bool XmlFiler::WriteString(const QString& name, const QString& value)
{
    return mpImp->SetAttribute(name, value);
}

bool XmlFiler::WriteInt(const QString& name, int value)
{
    return mpImp->SetAttribute(name, QString::number(value));
}

bool XmlFiler::WriteUInt(const QString& name, uint value)
{
    return mpImp->SetAttribute(name, QString::number(value));
}

bool XmlFiler::WriteLong(const QString& name, long value)
{
    return mpImp->SetAttribute(name, QString::number(value));
}

bool XmlFiler::WriteULong(const QString& name, ulong value)
{
    return mpImp->SetAttribute(name, QString::number(value));
}

bool XmlFiler::WriteLongLong(const QString& name, qlonglong value)
{
    return mpImp->SetAttribute(name, QString::number(value));
}

bool XmlFiler::WriteULongLong(const QString& name, qulonglong value)
{
    return mpImp->SetAttribute(name, QString::number(value));
}

bool XmlFiler::WriteDouble(const QString& name, double value)
{
    // The shortest text that reads back as the same double.
    return mpImp->SetAttribute(name, QString::number(value, 'g', QLocale::FloatingPointShortest));
}

bool XmlFiler::WriteBool(const QString& name, bool value)
{
    return mpImp->SetAttribute(name, value ? QStringLiteral("True") : QStringLiteral("False"));
}

bool XmlFiler::WriteDateTime(const QString& name, const QDateTime& value)
{
    return mpImp->SetAttribute(name, value.isValid() ? value.toString(Qt::ISODateWithMs) : QString());
}

bool XmlFiler::WriteRect(const QString& name, const QRect& value)
{
    return mpImp->SetAttribute(
        name, QStringLiteral("%1,%2,%3,%4").arg(value.x()).arg(value.y()).arg(value.width()).arg(value.height()));
}

bool XmlFiler::WriteSize(const QString& name, const QSize& value)
{
    return mpImp->SetAttribute(name, QStringLiteral("%1,%2").arg(value.width()).arg(value.height()));
}

bool XmlFiler::WritePoint(const QString& name, const QPoint& value)
{
    return mpImp->SetAttribute(name, QStringLiteral("%1,%2").arg(value.x()).arg(value.y()));
}

bool XmlFiler::WriteEnum(const QString& name, const XmlWordTable& table, int value)
{
    for (const auto& [tableValue, word] : table) {
        if (tableValue == value)
            return mpImp->SetAttribute(name, word);
    }
    return false;
}

bool XmlFiler::WriteFlags(const QString& name, const XmlWordTable& table, int value)
{
    // Words with more bits first, so that a combined word stands for its parts.
    XmlWordTable sorted = table;
    std::stable_sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) {
        return qPopulationCount(quint32(a.first)) > qPopulationCount(quint32(b.first));
    });
    QStringList words;
    int covered = 0;
    for (const auto& [tableValue, word] : std::as_const(sorted)) {
        if (tableValue == 0 || (value & tableValue) != tableValue || (covered & tableValue) == tableValue)
            continue;
        words.append(word);
        covered |= tableValue;
    }
    if (covered != value)
        return false;
    return mpImp->SetAttribute(name, words.join(QLatin1Char(',')));
}

bool XmlFiler::WriteElementText(const QString& text, bool asCData)
{
    QDomElement element = mpImp->Current();
    if (element.isNull())
        return false;
    ReplaceText(mpImp->mDocument, element, text, asCData);
    mpImp->Record(XmlFilerImp::Change::ElementText, element, QString(), text, asCData);
    mpImp->mbModified = true;
    return true;
}

bool XmlFiler::WriteBinary(const QByteArray& data)
{
    return WriteElementText(QString::fromLatin1(data.toBase64()));
}

QString XmlFiler::Translate(const QString& text) const
{
    if (!mpImp->mbTranslate)
        return text;
    QString id;
    if (!IsTranslatable(text, &id))
        return text;
    return mpImp->mpTranslationTable ? mpImp->mpTranslationTable->GetText(id) : id;
}

bool XmlFiler::IsTranslatable(const QString& text, QString* id)
{
    // Cheap test first: most attribute values have no parenthesis at all.
    if (!text.contains(QLatin1Char('(')))
        return false;
    static const QRegularExpression opening(QStringLiteral("^\\s*tr\\s*\\("),
                                            QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression closing(QStringLiteral("\\)\\s*$"));
    const QRegularExpressionMatch open = opening.match(text);
    if (!open.hasMatch())
        return false;
    const QRegularExpressionMatch close = closing.match(text, open.capturedEnd());
    if (!close.hasMatch())
        return false;
    if (id)
        *id = text.mid(open.capturedEnd(), close.capturedStart() - open.capturedEnd()).trimmed();
    return true;
}

Internal::AttributeReadLog::AttributeReadLog(XmlFiler& filer)
    : mFiler(filer)
    , mpPrevious(filer.mpImp->mpReadNames)
{
    filer.mpImp->mpReadNames = &mNames;
}

Internal::AttributeReadLog::~AttributeReadLog()
{
    mFiler.mpImp->mpReadNames = mpPrevious;
}

QStringList Internal::AttributeReadLog::Unread() const
{
    QStringList unread;
    const QDomNamedNodeMap attributes = mFiler.mpImp->Current().attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QString name = attributes.item(i).nodeName();
        // Namespace declarations and qualified attributes belong to other vocabularies.
        if (!name.contains(QLatin1Char(':')) && name != QLatin1String("xmlns") && !mNames.contains(name))
            unread.append(name);
    }
    return unread;
}

} // namespace Kavrel::UICore
