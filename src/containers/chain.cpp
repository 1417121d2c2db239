// Intrusive doubly and singly linked chains. The link fields lead every record
// that travels in a chain, so the functions work on the leading BDChns or
// SDChns of any such record. They never allocate, and nothing but the two
// release functions frees a node.
#include <korvane/containers.h>

#include <new>

namespace {

BDChns *bd(void *p) {
    return static_cast<BDChns *>(p);
}
SDChns *sd(void *p) {
    return static_cast<SDChns *>(p);
}

BDChns *lastOf(BDChns *p) {
    while (p->next)
        p = p->next;
    return p;
}
SDChns *lastOf(SDChns *p) {
    while (p->next)
        p = p->next;
    return p;
}

} // namespace

// ---- Doubly linked ------------------------------------------------------------

void mathFreBDChns(void *head) {
    BDChns *p = bd(head);
    while (p) {
        BDChns *next = p->next;
        // The node is a whole record of unknown size made by a single-object
        // new: the unsized release frees exactly that block.
        ::operator delete(p);
        p = next;
    }
}

void *mathInsBDChnsAtHead(void *item, void *chain) {
    if (!item)
        return chain;
    if (!chain)
        return item;
    BDChns *last = lastOf(bd(item));
    last->next = bd(chain);
    bd(chain)->prev = last;
    return item;
}

void *mathInsBDChnsAtTail(void *item, void *chain) {
    if (!item)
        return chain;
    if (!chain)
        return item;
    BDChns *last = lastOf(bd(chain));
    last->next = bd(item);
    bd(item)->prev = last;
    return chain;
}

void *mathDelItemInBDChns(void *item, void *chain) {
    if (!item || !chain)
        return chain;
    BDChns *it = bd(item);
    if (item == chain) {
        BDChns *head = it->next;
        if (head)
            head->prev = nullptr;
        return head;
    }
    // The unlinked node keeps its own links, so a caller may walk on from it.
    if (it->prev)
        it->prev->next = it->next;
    if (it->next)
        it->next->prev = it->prev;
    return chain;
}

void *mathInsItemInBDChns(void *item, void *chain) {
    if (!item)
        return chain;
    BDChns *it = bd(item);
    it->prev = nullptr;
    it->next = bd(chain);
    if (chain)
        bd(chain)->prev = it;
    return item;
}

int mathGetNumOfItemInBDChns(void *head) {
    int n = 0;
    for (BDChns *p = bd(head); p; p = p->next)
        ++n;
    return n;
}

void *mathRevBDChns(void *head) {
    BDChns *last = nullptr;
    BDChns *p = bd(head);
    while (p) {
        BDChns *next = p->next;
        p->next = p->prev;
        p->prev = next;
        last = p;
        p = next;
    }
    return last;
}

// ---- Singly linked ------------------------------------------------------------

void mathFreSDChns(void *head) {
    SDChns *p = sd(head);
    while (p) {
        SDChns *next = p->next;
        ::operator delete(p);
        p = next;
    }
}

void *mathInsSDChnsAtHead(void *item, void *chain) {
    if (!item)
        return chain;
    if (!chain)
        return item;
    lastOf(sd(item))->next = sd(chain);
    return item;
}

void *mathInsSDChnsAtTail(void *item, void *chain) {
    if (!item)
        return chain;
    if (!chain)
        return item;
    lastOf(sd(chain))->next = sd(item);
    return chain;
}

void *mathDelItemInSDChns(void *item, void *chain) {
    if (!item || !chain)
        return chain;
    SDChns *it = sd(item);
    if (item == chain)
        return it->next;
    for (SDChns *p = sd(chain); p->next; p = p->next) {
        if (p->next == it) {
            p->next = it->next;
            break;
        }
    }
    return chain;
}

void *mathInsItemInSDChns(void *item, void *chain) {
    if (!item)
        return chain;
    sd(item)->next = sd(chain);
    return item;
}

int mathGetNumOfItemInSDChns(void *head) {
    int n = 0;
    for (SDChns *p = sd(head); p; p = p->next)
        ++n;
    return n;
}
