#ifndef CWMUPDATECALLBACK_H
#define CWMUPDATECALLBACK_H

/**
 * What CWMUpdateTimer calls at every tick. It lets a class take part in the timing without being a
 * QObject, which a second base class of a widget cannot be.
 */
class CWMUpdateCallback {
public:
    virtual void update_window() = 0;

protected:
    CWMUpdateCallback() = default;
    // Nobody owns an object through this interface, so nobody deletes through it either.
    ~CWMUpdateCallback() = default;
};

#endif
