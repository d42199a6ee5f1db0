-- Turns what a program's --help prints into blocks of a document.
local help = {}

-- The words of a line, bold if they are meant literally.
local function inlines(text, literal)
    local words = pandoc.Inlines{}
    for word in text:gmatch("%S+") do
        if #words > 0 then
            words:insert(pandoc.Space())
        end
        words:insert(pandoc.Str(word))
    end
    return literal and pandoc.Inlines{pandoc.Strong(words)} or words
end

local function lines_of(text)
    local lines = {}
    for line in text:gmatch("([^\n]*)\n") do
        table.insert(lines, line)
    end
    return lines
end

-- An indented line "term  text" and the lines that continue it, as {term, text}. Without a term the text is all.
local function entries(lines, first)
    local found, i = {}, first
    while lines[i] and lines[i]:match("^  ") do
        local term, text = lines[i]:match("^  (%S.-)%s%s+(%S.*)$")
        local continued = lines[i]:match("^%s%s%s+(%S.*)$")
        if continued and #found > 0 then
            found[#found][2] = found[#found][2] .. " " .. continued
        else
            table.insert(found, {term or (lines[i]:match("^  (%S.*)$")), text or ""})
        end
        i = i + 1
    end
    return found, i
end

local function definitions(found)
    local items = {}
    for _, entry in ipairs(found) do
        local term = inlines(entry[1]:gsub(",%-", ", -"), true)
        table.insert(items, {term, {pandoc.Blocks{pandoc.Plain(inlines(entry[2]))}}})
    end
    return pandoc.DefinitionList(items)
end

local function list(found)
    for _, entry in ipairs(found) do
        if entry[2] ~= "" then
            return definitions(found)
        end
    end
    local items = {}
    for _, entry in ipairs(found) do
        table.insert(items, {pandoc.Plain(inlines(entry[1]))})
    end
    return pandoc.BulletList(items)
end

-- The text before and after the lists: paragraphs, and lists of what is indented.
local function prose(lines, first, last)
    local blocks, words, i = pandoc.Blocks{}, "", first
    local function flush()
        if words ~= "" then
            blocks:insert(pandoc.Para(inlines(words)))
        end
        words = ""
    end
    while i <= last do
        if lines[i]:match("^  ") then
            flush()
            local found
            found, i = entries(lines, i)
            blocks:insert(list(found))
        else
            local introduces = lines[i + 1] and lines[i + 1]:match("^  ")
            if lines[i] == "" or (introduces and words:match("%.$")) then
                flush()
            end
            words = words .. " " .. lines[i]:gsub("^%s+", "")
            words = words:match("%S") and words or ""
            i = i + 1
        end
    end
    flush()
    return blocks
end

-- What a command's --help says: description, usage, entries by their list's title, and the text after the lists.
function help.read(program, command)
    local arguments = command and {command, "--help"} or {"--help"}
    local lines = lines_of(pandoc.pipe(program, arguments, ""))
    local said = {lists = {}, titles = {}}
    local i = 1
    while lines[i] and not lines[i]:match("^Usage: ") do
        i = i + 1
    end
    said.description = prose(lines, 1, i - 1)
    said.usage = assert(lines[i], "no line of " .. program .. " --help begins with Usage:"):match("^Usage: .-([^/]+)$")
    i = i + 2
    while lines[i] and lines[i]:match("^%u%l+:$") do
        local title = lines[i]:match("^(%u%l+):$")
        table.insert(said.titles, title)
        said.lists[title], i = entries(lines, i + 1)
        while lines[i] == "" do
            i = i + 1
        end
    end
    local last = i
    while lines[last] and lines[last] ~= "Exit codes" do
        last = last + 1
    end
    said.text = prose(lines, i, last - 1)
    return said
end

-- The blocks of the main page: what it does, its options, and each command.
function help.blocks(program)
    local main = help.read(program)
    local blocks = pandoc.Blocks{pandoc.Header(1, "SYNOPSIS")}
    local synopsis = pandoc.Inlines{pandoc.Strong("zvgateway"), pandoc.Str(" [OPTIONS] key=value ...")}
    local commands = pandoc.Blocks{pandoc.Header(1, "COMMANDS")}
    for _, entry in ipairs(main.lists.Subcommands) do
        local said = help.read(program, entry[1])
        synopsis:extend{pandoc.LineBreak(), pandoc.Strong("zvgateway " .. entry[1]),
                        pandoc.Str(said.usage:gsub("^.*zvgateway " .. entry[1], ""))}
        commands:insert(pandoc.Header(2, "zvgateway " .. entry[1]))
        commands:extend(said.description)
        for _, title in ipairs(said.titles) do
            commands:insert(definitions(said.lists[title]))
        end
        commands:extend(said.text)
    end
    blocks:insert(pandoc.Para(synopsis))
    blocks:insert(pandoc.Header(1, "DESCRIPTION"))
    blocks:extend(main.description)
    blocks:extend(main.text)
    blocks:insert(pandoc.Header(1, "OPTIONS"))
    blocks:insert(definitions(main.lists.Options))
    blocks:extend(commands)
    return blocks
end

return help
