#include "SparePictures.h"

#include <algorithm>

QImage SparePictures::take()
{
    const auto found = std::find_if(m_pictures.begin(), m_pictures.end(),
                                    [](const QImage &picture) { return picture.isDetached(); });
    if (found == m_pictures.end())
        return {};
    QImage spare = std::move(*found);
    m_pictures.erase(found);
    return spare;
}

void SparePictures::keep(QImage picture)
{
    if (picture.isNull())
        return;
    if (m_pictures.size() == size_t(limit))
        m_pictures.erase(m_pictures.begin());
    m_pictures.push_back(std::move(picture));
}
