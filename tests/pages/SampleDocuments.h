// SPDX-License-Identifier: GPL-2.0-or-later
// Makes documents: PDF files page by page, and hostile ones.
#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>
#include <vector>

namespace bvtest {

// A PDF file of these objects, numbered from 1, the first of which is its catalog.
inline QByteArray pdfOf(const QList<QByteArray> &objects)
{
    QByteArray pdf = "%PDF-1.4\n";
    QByteArray table;
    for (qsizetype i = 0; i < objects.size(); ++i) {
        table += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(objects.size() + 1);
    return pdf + "xref\n0 " + count + "\n0000000000 65535 f \n" + table + "trailer<</Size " + count +
           "/Root 1 0 R>>\nstartxref\n" + QByteArray::number(pdf.size()) + "\n%%EOF\n";
}

inline QByteArray streamOf(const QByteArray &content, const QByteArray &entries = {})
{
    return "<<" + entries + "/Length " + QByteArray::number(content.size()) + ">>stream\n" + content + "\nendstream";
}

// A PDF file with a page for each size, in points. Each is red all over, and says its number.
inline QByteArray pdfWithPages(const std::vector<QSize> &sizes)
{
    QList<QByteArray> objects = {
        "<</Type/Catalog/Pages 2 0 R>>", {}, "<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>"};
    QByteArray kids;
    for (const QSize &size : sizes) {
        const QByteArray w = QByteArray::number(size.width());
        const QByteArray h = QByteArray::number(size.height());
        const QByteArray page = QByteArray::number(objects.size() + 1);
        const QByteArray content = QByteArray::number(objects.size() + 2);
        const QByteArray number = QByteArray::number((objects.size() - 1) / 2);
        kids += page + " 0 R ";
        objects << "<</Type/Page/Parent 2 0 R/MediaBox[0 0 " + w + ' ' + h + "]/Contents " + content +
                       " 0 R/Resources<</Font<</F 3 0 R>>>>>>"
                << streamOf("1 0 0 rg 0 0 " + w + ' ' + h + " re f 1 g BT /F 72 Tf 72 72 Td (" + number + ") Tj ET");
    }
    objects[1] = "<</Type/Pages/Kids[" + kids + "]/Count " + QByteArray::number(qsizetype(sizes.size())) + ">>";
    return pdfOf(objects);
}

struct HostileDocument
{
    const char *name;
    QByteArray content;
};

// Documents that are broken, or made to crash, to hang or to eat all memory.
inline std::vector<HostileDocument> hostileDocuments()
{
    const QByteArray whole = pdfWithPages({{595, 842}});
    const QByteArray catalog = "<</Type/Catalog/Pages 2 0 R>>";
    const QByteArray page = "<</Type/Page/Parent 2 0 R/MediaBox[0 0 595 842]/Contents 4 0 R/Resources<<";
    const QByteArray pages = "<</Type/Pages/Kids[3 0 R]/Count 1>>";
    QByteArray hugePicture("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\xff\xff\0\0\xff\xff\x08\x06\0\0\0\x80\x88\xf2\x47", 33);
    hugePicture += QByteArray("\0\0\0\x04IDAT\x78\x9c\x63\0\0\0\0\0", 16);
    const QByteArray bomb = qCompress(QByteArray("0 0 m 1 1 l S ").repeated(700'000), 9).mid(4);
    return {
        {"nothing", {}},
        {"cut", whole.left(300)},
        {"no-more-than-a-head", "%PDF-1.7\n" + QByteArray(20'000, '\xfe')},
        {"pages-in-a-circle",
         pdfOf({catalog, "<</Type/Pages/Kids[3 0 R]/Count 9>>", "<</Type/Pages/Kids[2 0 R]/Parent 2 0 R/Count 9>>"})},
        {"count-lies", pdfOf({catalog, "<</Type/Pages/Kids[]/Count 2000000000>>"})},
        {"huge-page", pdfOf({catalog, pages, "<</Type/Page/Parent 2 0 R/MediaBox[0 0 1e30 1e30]>>"})},
        {"table-in-a-circle", "%PDF-1.4\nxref\n0 1\n0000000000 65535 f \ntrailer<</Size 1/Root 1 0 R/Prev 9>>\n"
                              "startxref\n9\n%%EOF\n"},
        {"deep-arrays", "%PDF-1.4\n1 0 obj\n" + QByteArray(500'000, '[') + "\nendobj\ntrailer<</Root 1 0 R>>\n%%EOF\n"},
        {"endless-drawing", pdfOf({catalog, pages, page + ">>>>", streamOf(bomb, "/Filter/FlateDecode")})},
        {"huge-picture-inside",
         pdfOf({catalog, pages, page + "/XObject<</I 5 0 R>>>>>>", streamOf("595 0 0 842 0 0 cm /I Do"),
                streamOf("x", "/Type/XObject/Subtype/Image/Width 60000/Height 60000/ColorSpace/DeviceRGB"
                              "/BitsPerComponent 16")})},
        {"form-in-itself", pdfOf({catalog, pages, page + "/XObject<</I 5 0 R>>>>>>", streamOf("/I Do"),
                                  streamOf("/I Do /I Do", "/Type/XObject/Subtype/Form/BBox[0 0 9 9]/Resources"
                                                          "<</XObject<</I 5 0 R>>>>")})},
        {"huge-picture", hugePicture},
        {"picture-of-nothing", QByteArray("\xff\xd8\xff\xe0", 4) + QByteArray(2000, '\0')},
    };
}

} // namespace bvtest
