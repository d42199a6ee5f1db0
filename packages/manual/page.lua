-- A filter for pandoc, which makes a manual page of a document of docs/.
-- Metadata: name (the line under NAME), seealso, and, where a page has not all of its document, either sections or
-- left_out: titles of level 2, with "|" between them. With program, what its --help says comes first.
local folder = PANDOC_SCRIPT_FILE:match("^(.*)/")
local pages = {["configuration.md"] = "zvgateway-configuration(5)", ["authoring.md"] = "zvgateway-authoring(7)",
               ["conditions.md"] = "zvgateway-conditions(7)",
               ["operating.md"] = "zvgateway(1)", ["packages.md"] = "zvgateway-packages(7)"}

local function text(meta)
    return meta and pandoc.utils.stringify(meta) or nil
end

local function titles(meta)
    local set, named = {}, text(meta)
    for title in ((named or "") .. "|"):gmatch("(.-)|") do
        set[title] = true
    end
    return named and set
end

-- Leaves a paragraph or list out that has nothing but links and pictures: a table of contents.
local function leave_links_out(block)
    local bare = block:walk{Link = function() return {} end, Image = function() return {} end}
    return not pandoc.utils.stringify(bare):match("%w") and {} or nil
end

-- A row of a table as a term and its definition; what stands between them gets its column's title.
local function definition(cells, columns)
    local inlines = pandoc.Inlines{}
    for i = 2, #cells do
        local cell = pandoc.utils.blocks_to_inlines(cells[i])
        if #cell > 0 then
            if i < #cells then
                inlines:extend{pandoc.Emph(columns[i] .. ":"), pandoc.Space()}
            end
            inlines:extend(cell)
            if i < #cells then
                inlines:insert(pandoc.Str(" \u{2013} "))
            end
        end
    end
    return {pandoc.utils.blocks_to_inlines(cells[1]), {{pandoc.Plain(inlines)}}}
end

local contents = {Para = leave_links_out, BulletList = leave_links_out}
local as_on_pages = {
    Table = function(element)
        local simple = pandoc.utils.to_simple_table(element)
        local columns, items = {}, {}
        for i, header in ipairs(simple.headers) do
            columns[i] = pandoc.utils.stringify(header)
        end
        for _, row in ipairs(simple.rows) do
            table.insert(items, definition(row, columns))
        end
        return pandoc.DefinitionList(items)
    end,
    Code = function(element) return pandoc.Strong(element.text) end,
    Link = function(element)
        local page = pages[element.target:match("^[^#]*")]
        if not page then
            return element.content
        end
        local named = pandoc.utils.stringify(element.content):match("%.md$")
        return named and pandoc.Str(page) or element.content .. {pandoc.Str(" (" .. page .. ")")}
    end,
}

local function heading(element)
    if element.level == 2 then
        return pandoc.Header(1, pandoc.utils.stringify(element.content):upper())
    end
    return pandoc.Header(element.level - 1, pandoc.utils.stringify(element.content))
end

-- The blocks of the sections that the page has. Of a whole document the beginning is its description.
local function chosen(blocks, meta)
    local wanted, left_out = titles(meta.sections), titles(meta.left_out)
    local taken, taking, missing = pandoc.Blocks{}, not wanted and not left_out, wanted or left_out or {}
    if taking then
        taken:insert(pandoc.Header(1, "DESCRIPTION"))
    end
    for _, block in ipairs(blocks) do
        if block.t == "Header" and block.level == 2 then
            local title = pandoc.utils.stringify(block.content)
            taking = (not wanted or wanted[title] ~= nil) and not (left_out and left_out[title] ~= nil)
            missing[title] = missing[title] and false
        end
        if taking and not (block.t == "Header" and block.level == 1) then
            taken:insert(block.t == "Header" and heading(block) or block)
        end
    end
    for title, absent in pairs(missing) do
        assert(not absent, "the document has no section \"" .. title .. "\"")
    end
    return taken
end

function Pandoc(document)
    local meta = document.meta
    local blocks = pandoc.Blocks{pandoc.Header(1, "NAME"), pandoc.Para(text(meta.name))}
    if meta.program then
        blocks:extend(dofile(folder .. "/help.lua").blocks(text(meta.program)))
    end
    local body = pandoc.Div(document.blocks):walk(contents):walk(as_on_pages).content
    blocks:extend(chosen(body, meta))
    blocks:extend{pandoc.Header(1, "SEE ALSO"), pandoc.Para(text(meta.seealso))}
    return pandoc.Pandoc(blocks, meta)
end
