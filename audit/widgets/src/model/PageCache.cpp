#include "PageCache.h"

namespace ozm::audit {

namespace {

// Two to three screens; one page is read in a few milliseconds.
constexpr qint64 kPage = 128;
constexpr int kMostPages = 48;

} // namespace

PageCache::PageCache(const Store &store, Numbers numbers)
    : m_store(store)
    , m_numbers(std::move(numbers))
    , m_pages(kMostPages)
{}

TrailRow *PageCache::row(qint64 position)
{
    if (position < 0)
        return nullptr;
    const qint64 key = position / kPage;
    Page *page = m_pages.object(key);
    if (!page) {
        page = new Page(read(key * kPage));
        m_pages.insert(key, page);
    }
    const auto at = std::size_t(position % kPage);
    return at < page->size() ? &page->at(at) : nullptr;
}

void PageCache::grewFrom(qint64 position)
{
    m_pages.remove(position / kPage);
}

PageCache::Page PageCache::read(qint64 position)
{
    const QList<qint64> numbers = m_numbers(position, kPage);
    Page page(std::size_t(numbers.size()));
    for (qsizetype i = 0; i < numbers.size();) {
        // Numbers that follow each other are read at once.
        qsizetype end = i + 1;
        while (end < numbers.size() && numbers.at(end) == numbers.at(end - 1) + 1)
            ++end;
        for (qsizetype at = i; at < end; ++at)
            page.at(std::size_t(at)).entry.number = numbers.at(at);
        const qint64 first = numbers.at(i);
        Error error = m_store.forEach(first, numbers.at(end - 1), [&](const Entry &entry) {
            page.at(std::size_t(i + entry.number - first)).entry = entry;
            return true;
        });
        if (error.hasError())
            m_error = error;
        i = end;
    }
    return page;
}

} // namespace ozm::audit
