#include "Scene/View/ViewTest.h"

#include "Model/olTriangles.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <QTest>

namespace
{

constexpr auto marking = "Selection";

/// A box that nobody sees, in front of one that everybody does.
class Selection : public ViewTest
{
protected:
    Selection()
    {
        // A click on the cube would turn the view.
        apply("Render Options", "RenderOptions viewcube", false);
        const olScene::Document document = olScene::newDocument();
        invisible = add(document, gp_Pnt(0, -30, 0), 0.0f);
        visible = add(document, gp_Pnt(0, 0, 0), 1.0f);
        scene.setDocument(document);
        settle();
    }

    void findTransparent(bool on)
    {
        apply(marking, "Transparent Object Selection", on);
        settle();
    }

    void hide(const QSet<QString> &parts)
    {
        scene.setHiddenParts(parts);
        settle();
    }

    QString add(const olScene::Document &document, const gp_Pnt &corner, float opacity)
    {
        const TopoDS_Shape box = BRepPrimAPI_MakeBox(corner, 20, 20, 20).Shape();
        olTriangles::mesh(box, {});
        const TDF_Label label = XCAFDoc_DocumentTool::ShapeTool(document->Main())->AddShape(box, Standard_False);
        XCAFDoc_DocumentTool::ColorTool(document->Main())
            ->SetColor(label, Quantity_ColorRGBA(1, 0, 0, opacity), XCAFDoc_ColorSurf);
        scene.setDocument(document);
        return view.parts().last();
    }

    QString partUnder(const QPoint &point)
    {
        QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, point);
        return view.selection().value(0);
    }

    /// Where only the invisible box is.
    QPoint aside()
    {
        for (int row = 4; row < height; row += 8) {
            for (int column = 4; column < width; column += 8) {
                if (partUnder({column, row}) == invisible)
                    return {column, row};
            }
        }
        return {};
    }

    QString invisible;
    QString visible;
};

TEST_F(Selection, FindsTransparentObjectsWhereItShall)
{
    findTransparent(true);
    const QPoint place = aside();
    ASSERT_FALSE(place.isNull());
    findTransparent(false);
    EXPECT_EQ(partUnder(place), QString());
    hoverAt(QPoint(4, height - 4));
    const QImage before = view.picture();
    hoverAt(place);
    EXPECT_LT(difference(before, view.picture()), 0.0005) << "nor does hovering";

    findTransparent(true);
    hoverAt(place);
    EXPECT_GT(difference(before, view.picture()), 0.0005) << "its wireframe shows what a click would select";
    EXPECT_EQ(partUnder(place), invisible);

    hide({invisible});
    EXPECT_NE(partUnder(place), invisible) << "what is not drawn at all is not there";
    findTransparent(false);
    hide({});
    EXPECT_NE(partUnder(place), invisible) << "shown again it is as transparent as before";
}

TEST_F(Selection, ANearCameraFindsWhatItSees)
{
    apply("Navigator", "Navigator animate camera", false);
    view.select({visible});
    view.zoomToSelection();
    EXPECT_EQ(partUnder({width / 2, height / 2}), visible) << "before the next frame is drawn";
}

} // namespace
