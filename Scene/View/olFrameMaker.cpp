#include "View/olFrameMaker.h"

#include "State/olHostState.h"

namespace
{

olPictureMean::Finish wantedFinish()
{
    const olHostState &state = olHostState::the();
    olPictureMean::Finish finish;
    finish.smoothsEdges = state.postprocessAntialiasing != 0;
    finish.hidesBands = state.rgb16F;
    return finish;
}

} // namespace

void olFrameMaker::release()
{
    m_picture.release();
    m_mean.release();
}

bool olFrameMaker::draw(olSceneView &view, olPictureTarget &target, const QSize &size, const Options &options)
{
    olSceneView::Frame frame;
    frame.isMoving = options.isMoving;
    frame.isCoarse = options.isCoarse;
    frame.pixelRatio = options.pixelRatio;
    const std::vector<QPointF> shifts = view.shifts(options.isMoving);
    const olPictureMean::Finish finish = wantedFinish();
    const bool isPlain = shifts.size() == 1 && !options.isAnaglyph && !finish.smoothsEdges && !finish.hidesBands;
    if (isPlain)
        return target.bind(size) && view.draw(frame);

    if (!target.bind(size) || !m_mean.start(size))
        return false;
    for (const QPointF &shift : shifts) {
        frame.shift = shift;
        if (!addPicture(view, size, options, frame))
            return false;
    }
    m_mean.finish(target, int(shifts.size()), finish);
    return true;
}

bool olFrameMaker::drawStill(olSceneView &view, olPictureTarget &target, const Options &options, olStillFrame &still)
{
    const QSize size = target.size();
    if (still.taken() == 0 && !m_mean.start(size))
        return false;
    // What the real-time samples do within a pixel goes on over the pictures of the still frame.
    const std::vector<QPointF> shifts = view.shifts(false);
    olSceneView::Frame frame;
    frame.isStill = true;
    frame.samples = still.samples();
    frame.pixelRatio = options.pixelRatio;
    frame.shift = still.nextShift() + shifts[std::size_t(still.taken()) % shifts.size()];
    if (!addPicture(view, size, options, frame))
        return false;
    still.advance();
    olPictureMean::Finish finish = wantedFinish();
    finish.smoothsEdges = finish.smoothsEdges || still.hasSteps();
    m_mean.finish(target, still.taken(), finish);
    return true;
}

bool olFrameMaker::addPicture(olSceneView &view, const QSize &size, const Options &options,
                              const olSceneView::Frame &frame)
{
    using Eye = olSceneView::Eye;
    using Channels = olPictureMean::Channels;
    struct Look {
        Eye eye;
        Channels channels;
    };
    static constexpr Look both[] = {{Eye::Left, Channels::Red}, {Eye::Right, Channels::GreenAndBlue}};
    static constexpr Look one[] = {{Eye::Middle, Channels::All}};
    const auto depth = olHostState::the().rgb16F ? olPictureTarget::Depth::Float : olPictureTarget::Depth::Byte;
    const auto add = [&](const Look &look) {
        olSceneView::Frame seen = frame;
        seen.eye = look.eye;
        if (!m_picture.bind(size, depth) || !view.draw(seen))
            return false;
        m_mean.add(m_picture, look.channels);
        return true;
    };
    return options.isAnaglyph ? add(both[0]) && add(both[1]) : add(one[0]);
}
