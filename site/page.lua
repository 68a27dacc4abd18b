-- Fits the pages of the site together while pandoc converts them: the version and the changes
-- come from the metainfo, pictures get their sizes, assets an address that changes with them.
--
-- Metadata from the command line: `metainfo`, the file with the releases; `root`, the folder
-- that is published; `pictures`, the folder of the PNG pictures; `host`, `update-path` and
-- `contact`; `downloads`, the names of the files that are offered; `sample`, that of the
-- sample document where there is one.

local stringify = pandoc.utils.stringify

local function content(path)
  local file = assert(io.open(path, 'rb'))
  local bytes = file:read('a')
  file:close()
  return bytes
end

-- The address of a published file. It is another one when the file is another, so that
-- browsers may keep it for ever.
local function address(root, name)
  return '/' .. name .. '?v=' .. pandoc.utils.sha1(content(root .. '/' .. name)):sub(1, 8)
end

-- The releases, newest first, as blocks; and the version and the day of the newest.
local function releases(metainfo)
  local news = pandoc.read(
    pandoc.pipe('appstreamcli', {'metainfo-to-news', '--format=markdown', metainfo, '-'}, ''),
    'commonmark').blocks
  local version, day
  for _, block in ipairs(news) do
    local text = stringify(block)
    version = version or text:match('^Version (%S+)$')
    day = day or text:match('^Released: (%S+)$')
  end
  assert(version and day, 'no release in ' .. metainfo)
  return news, version, day
end

-- The files that are offered, with their sizes and sums.
local function downloads(root, offered)
  local items = ''
  for name in offered:gmatch('%S+') do
    local path = root .. '/downloads/' .. name
    items = items .. string.format('- [%s](/downloads/%s), %.1f MB\\\n  `%s`\n', name, name,
      #content(path) / 1e6, pandoc.pipe('sha256sum', {path}, ''):match('^%x+'))
  end
  return pandoc.read(items, 'commonmark').blocks
end

local function picture(image, root, pictures)
  local name = image.src:match('^pictures/(.+)%.png$')
  if not name then
    return nil
  end
  -- The width and the height of a PNG stand in its bytes 16 to 23.
  local width, height = string.unpack('>I4I4', content(pictures .. '/' .. name .. '.png'), 17)
  local first = image.attributes.loading == 'eager'
  local alt = stringify(image.caption):gsub('&', '&amp;'):gsub('"', '&quot;'):gsub('<', '&lt;')
  return pandoc.RawInline('html', string.format(
    '<picture><source srcset="%s" type="image/avif"><img src="%s" width="%d" height="%d"%s alt="%s"></picture>',
    address(root, 'pictures/' .. name .. '.avif'), address(root, 'pictures/' .. name .. '.png'),
    width, height, first and ' fetchpriority="high"' or ' loading="lazy" decoding="async"', alt))
end

function Pandoc(document)
  local meta, root = document.meta, stringify(document.meta.root)
  local news, version, day = releases(stringify(meta.metainfo))
  meta.version, meta.host = version, stringify(meta.host)

  -- A document that stands for itself has its title as its first heading.
  if not meta.title then
    assert(document.blocks[1].level == 1, 'a page begins with its title')
    meta.title = document.blocks:remove(1).content
    if document.blocks[1].t == 'Para' then
      meta.lead = pandoc.MetaBlocks {document.blocks:remove(1)}
    end
  end
  meta.asset = {}
  for key, name in pairs {icon = 'icon.svg', style = 'style.css', wordmark = 'wordmark.svg',
                          search = 'search.js', lunr = 'lunr.min.js'} do
    meta.asset[key] = address(root, name)
  end

  local values = {version = version, day = day, host = meta.host}
  return document:walk {
    Image = function(image)
      return picture(image, root, stringify(meta.pictures))
    end,
    Span = function(span)
      return values[span.classes[1]] and pandoc.Str(values[span.classes[1]])
    end,
    Div = function(div)
      if div.identifier == 'releases' then
        div.content = pandoc.Pandoc(news):walk {
          Header = function(header)
            return pandoc.Header(3, header.content)
          end}.blocks
        return div
      end
      -- What stands in a page only where there is something to point at.
      local offered = stringify(meta.downloads)
      local missing = {['sample-report'] = stringify(meta.sample) == '',
                       ['downloads'] = offered == '', ['no-downloads'] = offered ~= ''}
      local name = div.identifier ~= '' and div.identifier or div.classes[1]
      if missing[name] then
        return {}
      elseif name == 'downloads' then
        div.content:extend(downloads(root, offered))
        return div
      end
    end,
    Link = function(link)
      if link.target == 'update:' then
        link.target = stringify(meta['update-path'])
        return link
      elseif link.target == 'contact:' then
        return pandoc.Link(stringify(meta.contact), 'mailto:' .. stringify(meta.contact))
      elseif link.target == 'windows.md' then -- a document for those who build it
        link.target = stringify(meta['update-path']) .. '#windows'
        return link
      end
    end,
    CodeBlock = function(code)
      code.attributes.tabindex = '0' -- a long line can be scrolled by keyboard
      return code
    end,
    -- Without the kind of numbers, which is the usual one.
    OrderedList = function(list)
      return pandoc.OrderedList(list.content, pandoc.ListAttributes(list.start))
    end,
    -- Widths and alignments would be styles inside the page, which its server forbids.
    Table = function(tab)
      tab.colspecs = tab.colspecs:map(function() return {pandoc.AlignDefault, nil} end)
      if #tab.colspecs > 4 then -- on a phone it scrolls by itself
        -- In a fixed order, so that the same page has the same bytes.
        return pandoc.Div(tab, pandoc.Attr('', {'scroll'}, {{'tabindex', '0'}, {'role', 'group'},
                                                            {'aria-label', 'Wide table'}}))
      end
      return tab
    end,
  }
end
