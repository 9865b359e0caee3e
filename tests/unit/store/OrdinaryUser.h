#ifndef ORDINARYUSER_H
#define ORDINARYUSER_H

#include <QtGlobal>

#include <unistd.h>

/** Puts off the powers of root, who may write everywhere, for as long as it lives. */
class OrdinaryUser {
public:
    OrdinaryUser()
        : m_real(getuid())
        , m_effective(geteuid())
        , m_ordinary(m_effective != 0 || setresuid(nobody, nobody, 0) == 0)
    {
    }
    ~OrdinaryUser()
    {
        if (m_effective == 0 && m_ordinary && setresuid(m_real, m_effective, 0) != 0)
            qFatal("cannot become root again");
    }
    Q_DISABLE_COPY(OrdinaryUser)

    /// False if root could not be put off; then a test of what is forbidden says nothing.
    bool isOrdinary() const { return m_ordinary; }

private:
    static constexpr uid_t nobody = 65534;
    uid_t m_real;
    uid_t m_effective;
    bool m_ordinary;
};

#endif
