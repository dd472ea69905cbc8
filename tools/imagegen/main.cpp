// zelImageGen: draws the library's compiled-in images from one readable description
// (images.json) and writes them, with the resource list, into the resources directory.
//
// The description holds colours, named state styles, templates and, per image, its file
// name, size, the frames (rows or columns) with the state each one shows, and a short
// list of drawing operations in frame coordinates. Same description, same bytes: nothing
// here depends on the time, the fonts or the screen.

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLinearGradient>
#include <QMap>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <QTextStream>

#include <cstdio>

namespace {

QTextStream &err()
{
    static QTextStream stream(stderr);
    return stream;
}

// Variables visible while one frame is drawn, innermost scope first.
class Scope
{
public:
    void push(const QJsonObject &vars) { m_layers.prepend(vars); }

    QJsonValue lookup(const QString &name) const
    {
        for (const QJsonObject &layer : m_layers) {
            const auto it = layer.constFind(name);
            if (it != layer.constEnd())
                return it.value();
        }
        return QJsonValue(QJsonValue::Undefined);
    }

    // "$name" refers to a variable, which may itself refer to another one.
    QJsonValue resolve(QJsonValue value) const
    {
        for (int depth = 0; depth < 16 && value.isString() && value.toString().startsWith(QLatin1Char('$')); ++depth) {
            const QString name = value.toString().mid(1);
            const QJsonValue next = lookup(name);
            if (next.isUndefined()) {
                err() << "unknown variable $" << name << '\n';
                m_failed = true;
                return QJsonValue();
            }
            value = next;
        }
        return remapped(value);
    }

    // Colours of a variant image set (see Generator::variantImages).
    void setRemap(const QHash<QString, QString> *remap) { m_remap = remap; }

    // A misspelt variable would silently draw nothing; the run fails instead.
    bool failed() const { return m_failed; }

private:
    QJsonValue remapped(const QJsonValue &value) const
    {
        if (!m_remap || !value.isString())
            return value;
        const auto it = m_remap->constFind(value.toString().toUpper());
        return it == m_remap->constEnd() ? value : QJsonValue(it.value());
    }

    QList<QJsonObject> m_layers;
    const QHash<QString, QString> *m_remap = nullptr;
    mutable bool m_failed = false;
};

QColor parseColor(const QString &text)
{
    const QString t = text.trimmed();
    if (t.isEmpty() || t == QLatin1String("none") || t == QLatin1String("transparent"))
        return QColor(Qt::transparent);
    static const QRegularExpression rgba(QStringLiteral("^rgba?\\(([^)]*)\\)$"));
    const auto m = rgba.match(t);
    if (m.hasMatch()) {
        const QStringList parts = m.captured(1).split(QLatin1Char(','));
        if (parts.size() < 3)
            return QColor();
        QColor c(parts[0].trimmed().toInt(), parts[1].trimmed().toInt(), parts[2].trimmed().toInt());
        if (parts.size() > 3)
            c.setAlpha(parts[3].trimmed().toInt());
        return c;
    }
    return QColor(t);
}

class FramePainter
{
public:
    FramePainter(QPainter &painter, const Scope &vars, const QSize &frameSize)
        : p(painter), scope(vars), frame(frameSize)
    {
    }

    bool draw(const QJsonArray &ops)
    {
        for (const QJsonValue &op : ops) {
            if (!drawOp(op.toObject()))
                return false;
        }
        return true;
    }

private:
    QJsonValue value(const QJsonObject &op, const QString &key) const { return scope.resolve(op.value(key)); }
    double number(const QJsonObject &op, const QString &key, double fallback) const
    {
        const QJsonValue v = value(op, key);
        return v.isDouble() ? v.toDouble() : fallback;
    }
    QColor color(const QJsonObject &op, const QString &key) const
    {
        const QJsonValue v = value(op, key);
        return v.isString() ? parseColor(v.toString()) : QColor(Qt::transparent);
    }

    // [x, y, w, h]; a width or height of zero or less counts from the frame's far edge.
    QRectF rect(const QJsonObject &op) const
    {
        const QJsonArray a = value(op, QStringLiteral("rect")).toArray();
        if (a.size() != 4)
            return QRectF(QPointF(0, 0), QSizeF(frame));
        double w = scope.resolve(a[2]).toDouble();
        double h = scope.resolve(a[3]).toDouble();
        const double x = scope.resolve(a[0]).toDouble();
        const double y = scope.resolve(a[1]).toDouble();
        if (w <= 0)
            w += frame.width() - x;
        if (h <= 0)
            h += frame.height() - y;
        return QRectF(x, y, w, h);
    }

    QPointF point(const QJsonValue &v) const
    {
        const QJsonArray a = scope.resolve(v).toArray();
        return a.size() == 2 ? QPointF(scope.resolve(a[0]).toDouble(), scope.resolve(a[1]).toDouble()) : QPointF();
    }

    QBrush brush(const QJsonObject &op, const QRectF &r) const
    {
        const QColor top = color(op, QStringLiteral("fill"));
        if (!op.contains(QStringLiteral("fill2")))
            return QBrush(top);
        QLinearGradient g(r.topLeft(), r.bottomLeft());
        g.setColorAt(0, top);
        g.setColorAt(1, color(op, QStringLiteral("fill2")));
        return QBrush(g);
    }

    static QPainterPath roundedPath(const QRectF &r, const double radius[4])
    {
        // Corners clockwise from the top left.
        QPainterPath path;
        path.moveTo(r.left() + radius[0], r.top());
        path.lineTo(r.right() - radius[1], r.top());
        if (radius[1] > 0)
            path.arcTo(QRectF(r.right() - 2 * radius[1], r.top(), 2 * radius[1], 2 * radius[1]), 90, -90);
        path.lineTo(r.right(), r.bottom() - radius[2]);
        if (radius[2] > 0)
            path.arcTo(QRectF(r.right() - 2 * radius[2], r.bottom() - 2 * radius[2], 2 * radius[2], 2 * radius[2]), 0, -90);
        path.lineTo(r.left() + radius[3], r.bottom());
        if (radius[3] > 0)
            path.arcTo(QRectF(r.left(), r.bottom() - 2 * radius[3], 2 * radius[3], 2 * radius[3]), 270, -90);
        path.lineTo(r.left(), r.top() + radius[0]);
        if (radius[0] > 0)
            path.arcTo(QRectF(r.left(), r.top(), 2 * radius[0], 2 * radius[0]), 180, -90);
        path.closeSubpath();
        return path;
    }

    // A rounded box: fill inside, one-pixel (or wider) border on the outermost pixels.
    void box(const QJsonObject &op)
    {
        const QRectF r = rect(op);
        double radius[4] = {0, 0, 0, 0};
        const QJsonValue rv = value(op, QStringLiteral("radius"));
        if (rv.isArray()) {
            const QJsonArray a = rv.toArray();
            for (int i = 0; i < 4 && i < a.size(); ++i)
                radius[i] = scope.resolve(a[i]).toDouble();
        } else {
            for (double &c : radius)
                c = rv.toDouble();
        }
        const QColor border = color(op, QStringLiteral("border"));
        const double bw = number(op, QStringLiteral("borderWidth"), 1);
        const bool hasBorder = border.alpha() > 0 && bw > 0;
        const bool square = radius[0] == 0 && radius[1] == 0 && radius[2] == 0 && radius[3] == 0;

        if (square) {
            // Square boxes are drawn without antialiasing so every edge stays on whole pixels.
            const QRect ri = r.toRect();
            if (hasBorder) {
                const int b = qRound(bw);
                p.fillRect(ri, border);
                p.setCompositionMode(QPainter::CompositionMode_Source);
                p.fillRect(ri.adjusted(b, b, -b, -b), brush(op, r));
                p.setCompositionMode(QPainter::CompositionMode_SourceOver);
            } else {
                p.fillRect(ri, brush(op, r));
            }
            return;
        }
        const double inset = hasBorder ? bw / 2 : 0;
        const QRectF inner = r.adjusted(inset, inset, -inset, -inset);
        double innerRadius[4];
        for (int i = 0; i < 4; ++i)
            innerRadius[i] = qMax(0.0, radius[i] - inset);
        const QPainterPath path = roundedPath(inner, innerRadius);
        p.setRenderHint(QPainter::Antialiasing, true);
        p.fillPath(path, brush(op, r));
        if (hasBorder)
            p.strokePath(path, QPen(border, bw, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        p.setRenderHint(QPainter::Antialiasing, false);
    }

    // Pixel lines: "from" and "to" name the first and the last pixel of the line.
    void line(const QJsonObject &op)
    {
        const QPointF a = point(op.value(QStringLiteral("from")));
        const QPointF b = point(op.value(QStringLiteral("to")));
        const QColor c = color(op, QStringLiteral("color"));
        const double w = number(op, QStringLiteral("width"), 1);
        if (a.x() == b.x() || a.y() == b.y()) {
            const QRectF span = QRectF(a, b).normalized().adjusted(0, 0, a.x() == b.x() ? w : 1, a.y() == b.y() ? w : 1);
            p.fillRect(span, c);
            return;
        }
        p.setRenderHint(QPainter::Antialiasing, true);
        p.setPen(QPen(c, w, Qt::SolidLine, Qt::FlatCap));
        p.drawLine(a + QPointF(0.5, 0.5), b + QPointF(0.5, 0.5));
        p.setRenderHint(QPainter::Antialiasing, false);
    }

    // A small subset of SVG path data, absolute commands only: M L H V C Q Z.
    bool parsePath(const QString &d, QPainterPath &path) const
    {
        static const QRegularExpression token(QStringLiteral("[MLHVCQZmlhvcqz]|-?\\d*\\.?\\d+(?:[eE][-+]?\\d+)?"));
        QStringList tokens;
        auto it = token.globalMatch(d);
        while (it.hasNext())
            tokens << it.next().captured(0);
        int i = 0;
        QChar cmd;
        auto num = [&](double &out) {
            if (i >= tokens.size() || tokens[i].at(0).isLetter())
                return false;
            out = tokens[i++].toDouble();
            return true;
        };
        while (i < tokens.size()) {
            if (tokens[i].at(0).isLetter())
                cmd = tokens[i++].at(0).toUpper();
            double x, y, x1, y1, x2, y2;
            const QPointF cur = path.currentPosition();
            switch (cmd.toLatin1()) {
            case 'M':
                if (!num(x) || !num(y))
                    return false;
                path.moveTo(x, y);
                cmd = QLatin1Char('L');
                break;
            case 'L':
                if (!num(x) || !num(y))
                    return false;
                path.lineTo(x, y);
                break;
            case 'H':
                if (!num(x))
                    return false;
                path.lineTo(x, cur.y());
                break;
            case 'V':
                if (!num(y))
                    return false;
                path.lineTo(cur.x(), y);
                break;
            case 'C':
                if (!num(x1) || !num(y1) || !num(x2) || !num(y2) || !num(x) || !num(y))
                    return false;
                path.cubicTo(x1, y1, x2, y2, x, y);
                break;
            case 'Q':
                if (!num(x1) || !num(y1) || !num(x) || !num(y))
                    return false;
                path.quadTo(x1, y1, x, y);
                break;
            case 'Z':
                path.closeSubpath();
                break;
            default:
                return false;
            }
        }
        return true;
    }

    bool pathOp(const QJsonObject &op)
    {
        QPainterPath path;
        const QString d = value(op, QStringLiteral("d")).toString();
        if (!parsePath(d, path)) {
            err() << "bad path data: " << d << '\n';
            return false;
        }
        const QPointF offset = op.contains(QStringLiteral("at")) ? point(op.value(QStringLiteral("at"))) : QPointF();
        path.translate(offset);
        path.setFillRule(Qt::WindingFill);
        p.setRenderHint(QPainter::Antialiasing, value(op, QStringLiteral("antialias")).toBool(true));
        if (op.contains(QStringLiteral("fill")))
            p.fillPath(path, color(op, QStringLiteral("fill")));
        if (op.contains(QStringLiteral("stroke"))) {
            const QString cap = value(op, QStringLiteral("cap")).toString();
            const Qt::PenCapStyle capStyle = cap == QLatin1String("round") ? Qt::RoundCap
                : cap == QLatin1String("square") ? Qt::SquareCap : Qt::FlatCap;
            const Qt::PenJoinStyle join = cap == QLatin1String("round") ? Qt::RoundJoin : Qt::MiterJoin;
            p.strokePath(path, QPen(color(op, QStringLiteral("stroke")), number(op, QStringLiteral("width"), 1),
                                    Qt::SolidLine, capStyle, join));
        }
        p.setRenderHint(QPainter::Antialiasing, false);
        return true;
    }

    void ellipse(const QJsonObject &op)
    {
        const QPointF c = point(op.value(QStringLiteral("center")));
        const QJsonValue rv = value(op, QStringLiteral("radius"));
        const double rx = rv.isArray() ? rv.toArray().at(0).toDouble() : rv.toDouble();
        const double ry = rv.isArray() ? rv.toArray().at(1).toDouble() : rv.toDouble();
        QPainterPath path;
        path.addEllipse(c, rx, ry);
        p.setRenderHint(QPainter::Antialiasing, true);
        if (op.contains(QStringLiteral("fill")))
            p.fillPath(path, color(op, QStringLiteral("fill")));
        if (op.contains(QStringLiteral("stroke")))
            p.strokePath(path, QPen(color(op, QStringLiteral("stroke")), number(op, QStringLiteral("width"), 1)));
        p.setRenderHint(QPainter::Antialiasing, false);
    }

    bool drawOp(const QJsonObject &op)
    {
        const QString kind = value(op, QStringLiteral("op")).toString();
        if (kind == QLatin1String("box"))
            box(op);
        else if (kind == QLatin1String("fill"))
            p.fillRect(rect(op), brush(op, rect(op)));
        else if (kind == QLatin1String("clear")) {
            p.setCompositionMode(QPainter::CompositionMode_Clear);
            p.fillRect(rect(op), Qt::transparent);
            p.setCompositionMode(QPainter::CompositionMode_SourceOver);
        } else if (kind == QLatin1String("line"))
            line(op);
        else if (kind == QLatin1String("path"))
            return pathOp(op);
        else if (kind == QLatin1String("ellipse"))
            ellipse(op);
        else if (kind == QLatin1String("use")) {
            // Draws a shared list of operations ("shapes" in the description).
            // "rotate" turns it, in degrees clockwise, about the frame's centre.
            const QJsonValue shared = scope.resolve(op.value(QStringLiteral("shape")));
            const double angle = number(op, QStringLiteral("rotate"), 0);
            p.save();
            if (angle != 0) {
                const QPointF c(frame.width() / 2.0, frame.height() / 2.0);
                p.translate(c);
                p.rotate(angle);
                p.translate(-c);
            }
            const bool ok = draw(shared.toArray());
            p.restore();
            return ok;
        } else {
            err() << "unknown operation '" << kind << "'\n";
            return false;
        }
        return true;
    }

    QPainter &p;
    const Scope &scope;
    QSize frame;
};

quint32 readLE(const QByteArray &b, int at, int size)
{
    quint32 v = 0;
    for (int i = size - 1; i >= 0; --i)
        v = (v << 8) | quint8(b.at(at + i));
    return v;
}

// The ICO writer leaves the padding at the end of each transparency-mask row
// uninitialised; zero it so that the same image always gives the same file.
void clearIcoMaskPadding(QByteArray &ico)
{
    if (ico.size() < 6)
        return;
    const int count = int(readLE(ico, 4, 2));
    for (int e = 0; e < count && 6 + 16 * (e + 1) <= ico.size(); ++e) {
        const int offset = int(readLE(ico, 6 + 16 * e + 12, 4));
        if (offset + 40 > ico.size() || readLE(ico, offset, 4) != 40)
            continue; // not a bitmap entry
        const int width = int(readLE(ico, offset + 4, 4));
        const int height = int(readLE(ico, offset + 8, 4)) / 2;
        const int bits = int(readLE(ico, offset + 14, 2));
        const int xorRow = ((width * bits + 31) / 32) * 4;
        const int andRow = ((width + 31) / 32) * 4;
        const int maskStart = offset + 40 + xorRow * height
            + (bits <= 8 ? (1 << bits) * 4 : 0);
        for (int y = 0; y < height; ++y) {
            const int row = maskStart + y * andRow;
            if (row + andRow > ico.size())
                return;
            for (int x = width; x < andRow * 8; ++x)
                ico[row + x / 8] = char(quint8(ico.at(row + x / 8)) & ~(0x80 >> (x % 8)));
        }
    }
}

QJsonObject merged(QJsonObject base, const QJsonObject &over)
{
    for (auto it = over.constBegin(); it != over.constEnd(); ++it)
        base.insert(it.key(), it.value());
    return base;
}

struct Generator
{
    QJsonObject root;
    QString outDir;
    QMap<QString, QStringList> filesByDir;
    QMap<QString, QHash<QString, QString>> variantRemaps;

    // The image's own keys over those of its template; "vars" are kept apart so that
    // both layers stay visible.
    bool withTemplate(const QJsonObject &image, QJsonObject &result, QJsonObject &templateVars) const
    {
        result = image;
        templateVars = QJsonObject();
        const QString templ = image.value(QStringLiteral("template")).toString();
        if (templ.isEmpty())
            return true;
        const QJsonObject t = root.value(QStringLiteral("templates")).toObject().value(templ).toObject();
        if (t.isEmpty()) {
            err() << "unknown template " << templ << '\n';
            return false;
        }
        templateVars = t.value(QStringLiteral("vars")).toObject();
        result = merged(t, image);
        result.insert(QStringLiteral("vars"), image.value(QStringLiteral("vars")));
        return true;
    }

    // Pixel-art shapes (a triangle built of 5-, 3- and 1-pixel rows) would only be
    // doubled at a higher scale; such an image names a smooth outline of the same shape
    // for them in "highResolutionDraw".
    static QString drawKey(const QJsonObject &image, int scale)
    {
        const QString high = QStringLiteral("highResolutionDraw");
        return scale > 1 && image.contains(high) ? high : QStringLiteral("draw");
    }

    // A variant ("variants" in the description) redraws every image of one directory into
    // another with its own colour table: "colors" replaces named colours, "literals" maps
    // colours written out in the images (upper-case keys), except in the images listed
    // in "keepLiterals". The copies carry the variant's name under "variant".
    bool addVariantImages(QJsonArray &images)
    {
        const QJsonObject variants = root.value(QStringLiteral("variants")).toObject();
        const QJsonArray base = images;
        for (auto v = variants.constBegin(); v != variants.constEnd(); ++v) {
            const QJsonObject variant = v.value().toObject();
            const QString from = variant.value(QStringLiteral("from")).toString();
            const QString into = variant.value(QStringLiteral("dir")).toString();
            if (from.isEmpty() || into.isEmpty()) {
                err() << "variant " << v.key() << " needs 'from' and 'dir'\n";
                return false;
            }
            QHash<QString, QString> &remap = variantRemaps[v.key()];
            const QJsonObject literals = variant.value(QStringLiteral("literals")).toObject();
            for (auto l = literals.constBegin(); l != literals.constEnd(); ++l)
                remap.insert(l.key().toUpper(), l.value().toString());
            for (const QJsonValue &i : base) {
                QJsonObject image, templateVars;
                if (!withTemplate(i.toObject(), image, templateVars))
                    return false;
                if (image.value(QStringLiteral("dir")).toString() != from)
                    continue;
                QJsonObject copy = i.toObject();
                copy.insert(QStringLiteral("dir"), into);
                copy.insert(QStringLiteral("variant"), v.key());
                images.append(copy);
            }
        }
        return true;
    }

    void applyVariant(const QJsonObject &image, Scope &scope) const
    {
        const QString name = image.value(QStringLiteral("variant")).toString();
        if (name.isEmpty())
            return;
        const QJsonObject variant = root.value(QStringLiteral("variants")).toObject().value(name).toObject();
        scope.push(variant.value(QStringLiteral("colors")).toObject());
        const QJsonArray keep = variant.value(QStringLiteral("keepLiterals")).toArray();
        const auto remap = variantRemaps.constFind(name);
        if (remap != variantRemaps.constEnd() && !keep.contains(image.value(QStringLiteral("file"))))
            scope.setRemap(&remap.value());
    }

    // Draws the image at scale times its described size: the description stays in
    // logical pixels, so a 2x image is the same drawing with twice the detail.
    bool drawImage(const QJsonObject &image, const QJsonObject &templateVars, QImage &result, int scale = 1) const
    {
        const QJsonArray sizeArray = image.value(QStringLiteral("size")).toArray();
        const QSize size(sizeArray.at(0).toInt(), sizeArray.at(1).toInt());
        if (size.isEmpty()) {
            err() << "image without size\n";
            return false;
        }
        const QJsonObject frames = image.value(QStringLiteral("frames")).toObject();
        const bool alongX = frames.value(QStringLiteral("axis")).toString() == QLatin1String("x");
        const int step = frames.value(QStringLiteral("step")).toInt(alongX ? size.width() : size.height());
        QJsonArray states = frames.value(QStringLiteral("states")).toArray();
        if (states.isEmpty())
            states.append(QJsonObject{{QStringLiteral("name"), QStringLiteral("image")}});
        if (step <= 0) {
            err() << "frame step must be positive\n";
            return false;
        }
        const QSize frameSize = alongX ? QSize(step, size.height()) : QSize(size.width(), step);
        if (states.size() * step > (alongX ? size.width() : size.height())) {
            err() << "frames do not fit the image\n";
            return false;
        }

        QImage canvas(size * scale, QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        painter.scale(scale, scale);
        const QJsonObject styles = root.value(QStringLiteral("styles")).toObject();
        for (int i = 0; i < states.size(); ++i) {
            const QJsonObject state = states.at(i).toObject();
            Scope scope;
            scope.push(root.value(QStringLiteral("colors")).toObject());
            applyVariant(image, scope);
            scope.push(root.value(QStringLiteral("shapes")).toObject());
            scope.push(templateVars);
            scope.push(image.value(QStringLiteral("vars")).toObject());
            QJsonValue uses = state.value(QStringLiteral("style"));
            const QJsonArray useList = uses.isArray() ? uses.toArray() : QJsonArray{uses};
            for (const QJsonValue &u : useList) {
                if (u.isUndefined() || u.isNull())
                    continue;
                if (!styles.contains(u.toString())) {
                    err() << "unknown style " << u.toString() << '\n';
                    return false;
                }
                scope.push(styles.value(u.toString()).toObject());
            }
            scope.push(state);
            if (state.value(QStringLiteral("empty")).toBool())
                continue;
            const QJsonArray ops = state.contains(QStringLiteral("draw")) ? state.value(QStringLiteral("draw")).toArray()
                                                                          : image.value(drawKey(image, scale)).toArray();
            painter.save();
            const QPoint origin = alongX ? QPoint(i * step, 0) : QPoint(0, i * step);
            painter.translate(origin);
            painter.setClipRect(QRect(QPoint(0, 0), frameSize));
            FramePainter fp(painter, scope, frameSize);
            const bool ok = fp.draw(ops) && fp.draw(state.value(QStringLiteral("extra")).toArray()) && !scope.failed();
            painter.restore();
            if (!ok)
                return false;
        }
        painter.end();
        result = canvas.convertToFormat(QImage::Format_ARGB32);
        return true;
    }

    bool run()
    {
        QJsonArray images = root.value(QStringLiteral("images")).toArray();
        if (!addVariantImages(images))
            return false;
        const QJsonObject dirs = root.value(QStringLiteral("directories")).toObject();
        int written = 0;
        for (const QJsonValue &v : images) {
            QJsonObject image, templateVars;
            if (!withTemplate(v.toObject(), image, templateVars))
                return false;
            const QString file = image.value(QStringLiteral("file")).toString();
            const QString dir = image.value(QStringLiteral("dir")).toString();
            if (file.isEmpty() || !dirs.contains(dir)) {
                err() << "image '" << file << "' needs a file name and one of the directories\n";
                return false;
            }
            if (filesByDir.value(dir).contains(file)) {
                err() << "image '" << file << "' is described twice\n";
                return false;
            }
            QImage img;
            if (!drawImage(image, templateVars, img)) {
                err() << "  while drawing " << file << '\n';
                return false;
            }
            if (!writeImage(dir, file, img))
                return false;
            if (!writeHighResolution(image, templateVars, dir, file))
                return false;
            filesByDir[dir] << file;
            ++written;
        }
        if (!writeQrc(dirs))
            return false;
        QTextStream(stdout) << written << " images written to " << QDir::toNativeSeparators(outDir) << '\n';
        return true;
    }

    bool writeImage(const QString &dir, const QString &file, const QImage &img) const
    {
        QDir().mkpath(outDir + QLatin1Char('/') + dir);
        const QString path = outDir + QLatin1Char('/') + dir + QLatin1Char('/') + file;
        const QByteArray format = QFileInfo(file).suffix().toLower().toLatin1();
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, format);
        if (!writer.write(img)) {
            err() << "cannot write " << path << ": " << writer.errorString() << '\n';
            return false;
        }
        QByteArray bytes = buffer.data();
        if (format == "ico")
            clearIcoMaskPadding(bytes);
        if (!writeIfChanged(path, bytes))
            return false;
        // Read it back: what the library loads must be what was drawn.
        const QImage back(path);
        if (back.isNull() || back.size() != img.size()) {
            err() << "written " << path << " does not read back\n";
            return false;
        }
        return true;
    }

    // Each image is drawn again at every factor of "highResolutionScales" (an image may
    // narrow the list with its own key) and written as "name@<factor>x.ext", the name
    // Qt's loaders look for on high-resolution screens. Only the files are added to the
    // resource list: the 1x file keeps its alias.
    bool writeHighResolution(const QJsonObject &image, const QJsonObject &templateVars, const QString &dir,
                             const QString &file)
    {
        const QString key = QStringLiteral("highResolutionScales");
        const QJsonArray scales = image.contains(key) ? image.value(key).toArray() : root.value(key).toArray();
        const QFileInfo info(file);
        for (const QJsonValue &v : scales) {
            const int scale = v.toInt();
            if (scale < 2) {
                err() << "image '" << file << "': a high-resolution scale must be an integer of 2 or more\n";
                return false;
            }
            const QString scaledFile = info.completeBaseName() + QLatin1Char('@') + QString::number(scale)
                + QStringLiteral("x.") + info.suffix();
            QImage img;
            if (!drawImage(image, templateVars, img, scale)) {
                err() << "  while drawing " << scaledFile << '\n';
                return false;
            }
            if (!writeImage(dir, scaledFile, img))
                return false;
            filesByDir[dir] << scaledFile;
        }
        return true;
    }

    // Unchanged files keep their time stamps, so the library's resources are not rebuilt.
    static bool writeIfChanged(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly) && file.readAll() == bytes)
            return true;
        file.close();
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size()) {
            err() << "cannot write " << path << '\n';
            return false;
        }
        return true;
    }

    bool writeQrc(const QJsonObject &dirs)
    {
        QString text;
        QTextStream out(&text);
        out << "<!DOCTYPE RCC><RCC version=\"1.0\">\n"
            << "<!-- Written by tools/imagegen (zelImageGen) from tools/imagegen/images.json. -->\n";
        const QJsonArray order = root.value(QStringLiteral("directoryOrder")).toArray();
        for (const QJsonValue &d : order) {
            const QString dir = d.toString();
            out << "<qresource prefix=\"" << dirs.value(dir).toString() << "\">\n";
            QStringList files = filesByDir.value(dir);
            files.sort();
            for (const QString &f : files)
                out << "    <file alias=\"" << f << "\">" << dir << '/' << f << "</file>\n";
            out << "</qresource>\n";
        }
        out << "</RCC>\n";
        out.flush();
        return writeIfChanged(outDir + QStringLiteral("/zelRibbon.qrc"), text.toUtf8());
    }
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QStringList args = app.arguments().mid(1);
    if (args.contains(QStringLiteral("-h")) || args.contains(QStringLiteral("--help"))) {
        QTextStream(stdout) << "usage: zelImageGen [description.json [resources-dir]]\n"
                            << "defaults: " << ZEL_IMAGEGEN_DESCRIPTION << ' ' << ZEL_IMAGEGEN_OUTPUT << '\n';
        return 0;
    }
    const QString description = args.value(0, QStringLiteral(ZEL_IMAGEGEN_DESCRIPTION));
    const QString outDir = args.value(1, QStringLiteral(ZEL_IMAGEGEN_OUTPUT));

    QFile file(description);
    if (!file.open(QIODevice::ReadOnly)) {
        err() << "cannot open " << description << '\n';
        return 1;
    }
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (doc.isNull()) {
        err() << description << ": " << parseError.errorString() << " at offset " << parseError.offset << '\n';
        return 1;
    }
    if (!QImageWriter::supportedImageFormats().contains("ico"))
        err() << "warning: no ICO writer plugin; .ico files will fail\n";

    Generator gen;
    gen.root = doc.object();
    gen.outDir = outDir;
    const bool ok = gen.run();
    err().flush();
    return ok ? 0 : 1;
}
