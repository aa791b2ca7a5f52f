#include "WindowTest.h"
#include "olModelExtent.h"

#include "Exchange/olExportScene.h"
#include "Model/olScene.h"
#include "Model/olShapeFacts.h"
#include "Support/Files.h"

#include <TDocStd_Document.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <cmath>

namespace
{

class ModelExtent : public WindowTest
{
protected:
    /// Of a file with these records of entities, given as directory and parameters in turn, in inches.
    [[nodiscard]] double extentOf(const QList<std::pair<QByteArray, QByteArray>> &entities) const
    {
        QByteArray directory;
        QByteArray parameters;
        int number = 0;
        const auto line = [](const QByteArray &text, char section, int count) {
            return text.leftJustified(72) + section + QByteArray::number(count).rightJustified(7) + '\n';
        };
        for (const auto &[what, fields] : entities) {
            const int own = 2 * number + 1;
            directory += line(what, 'D', own) + line({}, 'D', own + 1);
            parameters += line(fields.leftJustified(64) + QByteArray::number(own).rightJustified(8), 'P', ++number);
        }
        // A text may have the signs between fields in it.
        const QByteArray start =
            line("made by hand", 'S', 1) + line("1H,,1H;,3Ha,;,4Hfile,,,32,38,6,308,15,,1.,1,2HIN,1,0.,;", 'G', 1);
        const QString file = writtenFile(path("made.igs"), start + directory + parameters);
        return olModelExtent(file).value_or(0.0) / 25.4;
    }

    /// A directory entry: the kind, what moves it, and whether something else is made of it.
    [[nodiscard]] static QByteArray entry(int kind, int transformation = 0, bool isPart = false)
    {
        return QByteArray::number(kind).rightJustified(8) + QByteArray(40, ' ') +
               QByteArray::number(transformation).rightJustified(8) + QByteArray(8, ' ') +
               (isPart ? "00010000" : "00000000");
    }
};

TEST_F(ModelExtent, IsToldFromAFileAboutAsItIs)
{
    Bnd_Box box;
    TDF_LabelSequence shapes;
    const auto tool = XCAFDoc_DocumentTool::ShapeTool(window.scene().document()->Main());
    tool->GetFreeShapes(shapes);
    for (const TDF_Label &shape : shapes)
        box.Add(olDrawnBox(XCAFDoc_ShapeTool::GetShape(shape)));
    const double extent = std::sqrt(box.SquareExtent());
    for (const char *name : {"sample.step", "sample.igs"}) {
        const QString file = path(name);
        ASSERT_TRUE(olExportScene(window.scene().document(), file).isOk());
        const double told = olModelExtent(file).value_or(0.0);
        EXPECT_GT(told, extent / 1.5) << name;
        EXPECT_LT(told, extent * 1.5) << name;
    }
}

TEST_F(ModelExtent, OfAnIgesFileIsThatOfTheEdgesOrOfNothing)
{
    // A face of 3 by 4 on a surface of 900 by 900, with a curve in the surface's parameters that is longer still; it is
    // moved by 7 as a whole, which changes no size, and half turned with one edge alone, which does.
    const QList<std::pair<QByteArray, QByteArray>> face{
        {entry(128, 0, true), "128,1,1,1,1,0,0,1,0,0,0,0,1,1,0,0,1,1,1,1,1,1,0,0,0,9D2,0,0,0,9D2,0,9D2,9D2,0,0,1,0,1;"},
        {entry(110, 0, true), "110,0.,0.,0.,5000.,0.,0.;"},
        {entry(110, 9, true), "110,0.,0.,0.,3.D0,0.,0.;"},
        {entry(110, 9, true), "110,3.,0.,0.,3.,4.,0.;"},
        {entry(124), "124,1.,0.,0.,7.,0.,1.,0.,0.,0.,0.,1.,0.;"},
        {entry(102, 0, true), "102,2,5,7;"},
        {entry(142, 0, true), "142,0,1,3,11,2;"},
        {entry(144), "144,1,1,0,13;"}};
    EXPECT_NEAR(extentOf(face), 5.0, 0.001);

    auto turned = face;
    turned[4].second = "124,-1.,0.,0.,0.,0.,-1.,0.,0.,0.,0.,1.,0.;";
    turned[2].first = entry(110, 0, true);
    EXPECT_NEAR(extentOf(turned), std::hypot(6.0, 4.0), 0.001);

    auto round = face;
    round[3] = {entry(100, 0, true), "100,0.,1.,0.,2.,0.,1.,1.;"};
    EXPECT_NEAR(extentOf(round), std::hypot(9.0, 1.0), 0.001) << "a quarter of a circle, and the moved edge";

    for (const auto &[what, parameters] : std::initializer_list<std::pair<QByteArray, QByteArray>>{
             {entry(104), "104,1.,0.,0.,1.,0.,-1.,0.,1.,0.,0.,1.;"}, {entry(308), "308,0,1Ha,1,15;"}}) {
        auto unknown = face;
        unknown.append({what, parameters});
        EXPECT_EQ(extentOf(unknown), 0.0) << parameters.constData();
    }
    for (const char *field : {"x", "2147483647H"}) {
        auto damaged = face;
        damaged[3].second = QByteArray("110,3.,0.,") + field + ",3.,4.,0.;";
        EXPECT_EQ(extentOf(damaged), 0.0) << field;
    }
}

} // namespace
